#pragma once
// The windows of the program, one per form, each mirroring its form model: the main window,
// the dialog of many faces (splash and About box), the mini player and the small dialog.
// Built before the program's entry procedure runs, so every model change shows; the program
// must outlive them.
#include <memory>

namespace sonarium {

class FormWindow;
class GeneralWindow;
class MainWindow;
class MiniPlayerWindow;
class Program;

class Views {
public:
    explicit Views(Program& program);
    ~Views();
    Views(const Views&) = delete;
    Views& operator=(const Views&) = delete;

    MainWindow& main() const { return *main_; }
    GeneralWindow& general() const { return *general_; }
    MiniPlayerWindow& miniPlayer() const { return *mini_; }
    FormWindow& form2() const { return *form2_; }

private:
    // Declared so that the dialogs, which are children of the main window, go first.
    std::unique_ptr<MainWindow> main_;
    std::unique_ptr<MiniPlayerWindow> mini_;
    std::unique_ptr<GeneralWindow> general_;
    std::unique_ptr<FormWindow> form2_;
};

}  // namespace sonarium

#pragma once
// The small dialog of two faces: the punch in/out editor of a queued song, and the list of CD
// drives. The punch panel shown means the editor; hidden, the drive list.
#include <cstdint>

#include "controls/Components.h"
#include "controls/Errors.h"
#include "controls/Form.h"
#include "controls/Widgets.h"
#include "shell/Module1.h"

namespace sonarium {

class Form2 : public Form {
public:
    Form2(Module1& m, Components& c);

    // The queue row whose section the editor works on.
    struct PunchRow {
        int index = 0;     // the row, which indexes the punch arrays
        int rowCount = 0;  // rows in the queue
        QString text;      // the row as the queue shows it
        QString songFile;  // the MP3 it names
    };
    // Opens the editor on the row, modally; returns when the dialog has closed.
    void ShowPunch(const PunchRow& row);
    // Lists the drives and waits for a choice; SelectedCDDrive holds it afterwards.
    void ShowDrives(const QStringList& drives);

    // Drive list
    Label lblSelectDrive{"lblSelectDrive"};
    ListBox List1{"List1"};
    CommandButton cmdSelectOK{"cmdSelectOK"};

    // Punch in/out
    Panel PanelPunchInOut{"PanelPunchInOut"};
    Label lblSongTitile{"lblSongTitile"};
    Label lblTotalFrames{"lblTotalFrames"}, lblStartFrame{"lblStartFrame"}, lblEndFrame{"lblEndFrame"},
        lblPosn{"lblPosn"};
    Label lblTotalCaption{"lblTotalCaption"}, lblPosnCaption{"lblPosnCaption"},
        lblStartCaption{"lblStartCaption"}, lblEndCaption{"lblEndCaption"}, lblAdjustStart{"lblAdjustStart"},
        lblAdjustEnd{"lblAdjustEnd"};
    sonarium::Slider Slider{"Slider"};
    CommandButton cmdPunchInOutPlay{"cmdPunchInOutPlay"}, cmdPunchInOutSet{"cmdPunchInOutSet"},
        cmdPunchInOutTest{"cmdPunchInOutTest"};
    CommandButton cmdStartFrameLess{"cmdStartFrameLess"}, cmdStartFrameMore{"cmdStartFrameMore"},
        cmdEndFrameLess{"cmdEndFrameLess"}, cmdEndFrameMore{"cmdEndFrameMore"};
    CheckBox chkPunchInOutActivate{"chkPunchInOutActivate"};
    CommandButton cmdClearAll{"cmdClearAll"}, cmdPunchInOutOK{"cmdPunchInOutOK"},
        cmdPunchInOutCancel{"cmdPunchInOutCancel"};

    std::int32_t PunchTotalFrames = 0;

    // In the order of their views: the punch panel and its controls over the drive list.
    std::vector<Control*> allControls();

private:
    void design();
    void wireHandlers();
    bool tryStep(const std::function<void()>& statement) { return sonarium::tryStep(C.errors, statement); }

    // The editor's handlers.
    void OpenPunch();
    void ResizePunchArrays(int rows);
    void cmdPunchInOutPlay_Click();
    void cmdPunchInOutSet_Click();
    void cmdPunchInOutTest_Click();
    void AdjustFrame(std::int32_t& frame, int step, bool allowed, Label& label);
    void EndFrameAdjusted();
    void cmdClearAll_Click();
    void cmdPunchInOutOK_Click();
    void cmdPunchInOutCancel_Click();
    void MP32_FrameNotify(std::int32_t frame);
    void MP32_StreamEnd();
    void Slider_Scroll();
    void Form_Unload();

    Module1& M;
    Components& C;
    PunchRow row_;
};

}  // namespace sonarium

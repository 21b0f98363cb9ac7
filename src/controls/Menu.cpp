#include "controls/Menu.h"

namespace sonarium {

MenuItem::MenuItem(QString name, QString caption, MenuItem* parent)
    : name_(std::move(name)), caption_(std::move(caption)), parent_(parent) {
    if (parent_) parent_->children_.push_back(this);
}

}  // namespace sonarium

#pragma once

#include "platform/control.h"

/// A frame with a title. It can be the parent of other controls.
class GroupBox final : public Control {
public:
    GroupBox(QWidget* parent, std::string const& name);

    void Apply(ControlProperties const& properties) override;
};

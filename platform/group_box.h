#pragma once

#include "platform/control.h"

/// A frame with a caption, which other controls may have as their parent.
class GroupBox final : public Control {
public:
    GroupBox(QWidget* parent, std::string const& name);

    void Apply(ControlProperties const& properties) override;
};

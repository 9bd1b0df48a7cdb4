#pragma once

#include "platform/control.h"

/// A frame with a caption; the controls inside it are its children.
class GroupBox final : public Control {
public:
    GroupBox(QWidget* parent, std::string const& name);

    void Apply(ControlProperties const& properties) override;
};

#pragma once

#include "platform/control.h"

/// A bold caption wider than the label is condensed.
class Label final : public Control {
public:
    Label(QWidget* parent, std::string const& name);

    /// Makes this the label of that control for assistive programs.
    void LabelFor(Control const& control);
    /// Shows several lines, centred.
    void Multiline();

    void Apply(ControlProperties const& properties) override;
};

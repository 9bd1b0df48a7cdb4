#pragma once

#include "platform/control.h"

/// A fixed text on the form. A bold caption too wide for its place is condensed.
class Label final : public Control {
public:
    Label(QWidget* parent, std::string const& name);

    /// Makes this the label of that control for assistive programs.
    void LabelFor(Control const& control);
    /// Lets the text run over several centred lines.
    void Multiline();

    void Apply(ControlProperties const& properties) override;
};

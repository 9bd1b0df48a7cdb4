#pragma once

#include "platform/control.h"

/// A fixed text on the form. A bold caption too wide for the label is condensed.
class Label final : public Control {
public:
    Label(QWidget* parent, std::string const& name);

    /// Shows the text in several centred lines.
    void Multiline();

    void Apply(ControlProperties const& properties) override;
};

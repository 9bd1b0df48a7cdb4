#include "platform/qt/widgets/text_commands.h"

#include "platform/qt/widgets/line_edit.h"

#include <algorithm>
#include <array>

namespace {

void Copy(LineEdit& field)
{
    field.copy();
}

void Clear(LineEdit& field)
{
    field.removeSelection();
}

void Cut(LineEdit& field)
{
    Copy(field);
    Clear(field);
}

void Paste(LineEdit& field)
{
    field.pasteFrom(QClipboard::Clipboard);
}

constexpr std::array kTextCommands = {
    TextCommand{"EditCut", true, Cut},
    TextCommand{"EditCopy", false, Copy},
    TextCommand{"EditPaste", true, Paste},
    TextCommand{"EditClear", true, Clear},
};

} // namespace

TextCommand const* FindTextCommand(std::string_view item)
{
    auto const* const found = std::ranges::find(kTextCommands, item, &TextCommand::item);
    return found == kTextCommands.end() ? nullptr : &*found;
}

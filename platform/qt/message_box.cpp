#include "platform/message_box.h"

#include "platform/qt/doors.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/dialogs.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/quiet_box.h"
#include "platform/qt/widgets/top_level.h"

#include <cassert>

void MsgBox(std::string_view text)
{
    PlatformDoors().messageBox({std::string(text), "", false});
}

int MsgBox(std::string_view text, [[maybe_unused]] int buttons, std::string_view title)
{
    assert(buttons == kYesNoQuestion);
    return PlatformDoors().messageBox({std::string(text), std::string(title), true});
}

int ShowMessageBox(MessageBoxRequest const& request)
{
    if (Runtime::instance().isEnding) {
        return kNo;
    }
    QuietBox box(Program::instance().front.window());
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(request.text));
    box.setWindowTitle(ToQt(request.title));
    box.setIcon(request.question ? QMessageBox::Question : QMessageBox::Information);
    box.setStandardButtons(request.question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    box.setDefaultButton(request.question ? QMessageBox::No : QMessageBox::Ok);
    box.setEscapeButton(request.question ? QMessageBox::No : QMessageBox::Ok);
    return RunDialog(box) == QMessageBox::Yes ? kYes : kNo;
}

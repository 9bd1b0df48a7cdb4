#include "platform/message_box.h"

#include "platform/doors.h"
#include "platform/qt/desktop_doors.h"
#include "platform/qt/text.h"
#include "platform/qt/top_level.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMessageBox>

namespace {

/// A message box that only a deliberate key answers: keys that are meant for a field, or that were held
/// down when the box came, do nothing.
class Box final : public QMessageBox {
public:
    Box(MessageBoxRequest const& request, QWidget* parent) : QMessageBox(parent)
    {
        setTextFormat(Qt::PlainText);
        setText(ToQt(request.text));
        setWindowTitle(ToQt(request.title));
        setIcon(request.question ? Question : Information);
        setStandardButtons(request.question ? Yes | No : StandardButtons(Ok));
        setDefaultButton(request.question ? No : Ok);
        setEscapeButton(request.question ? No : Ok);
        for (QAbstractButton* const button : buttons()) {
            button->installEventFilter(this);
        }
    }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        return event->type() == QEvent::KeyPress ? isStray(*static_cast<QKeyEvent*>(event))
                                                 : QMessageBox::eventFilter(receiver, event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (!isStray(*event)) {
            QMessageBox::keyPressEvent(event);
        }
    }

private:
    static bool isStray(QKeyEvent const& event)
    {
        bool const isPlain =
            !(event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier));
        bool const isText = !event.text().isEmpty() && event.text().at(0).isPrint();
        return event.isAutoRepeat() || (isPlain && isText && event.key() != Qt::Key_Space);
    }
};

} // namespace

int ShowMessageBox(MessageBoxRequest const& request)
{
    Box box(request, TopLevel::front());
    return box.exec() == QMessageBox::Yes ? kYes : kNo;
}

void MsgBox(std::string_view text)
{
    PlatformDoors().messageBox({std::string(text), "", false});
}

int MsgBox(std::string_view text, int buttons, std::string_view title)
{
    return PlatformDoors().messageBox({std::string(text), std::string(title), buttons == kYesNoQuestion});
}

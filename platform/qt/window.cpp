#include "platform/window.h"

#include "platform/qt/guarded.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/form_palette.h"
#include "platform/qt/widgets/form_style.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/top_level.h"

#include <algorithm>

namespace {

/// Destroys a closed window when no handler is running and the current event is over, since both may belong to it. The
/// event alone is not enough: a message box handles events while the handler that opened it waits.
class ClosedWindow final : public QObject {
public:
    explicit ClosedWindow(std::unique_ptr<Window> window) : QObject(qApp), window_(std::move(window))
    {
        AfterHandlers([this] { deleteLater(); });
    }

private:
    std::unique_ptr<Window> window_;
};

} // namespace

Window* _GetImplicitWindow(std::string_view className)
{
    auto const& windows = Runtime::instance().windows;
    auto const found = windows.find(className);
    return found == windows.end() ? nullptr : found->second.get();
}

Window::Window(std::string className)
    : className_(std::move(className)), topLevel_(std::make_unique<TopLevel>())
{
    topLevel_->setObjectName(ToQt(className_));
}

/// Destroys the controls from last to first, so that children go before their parent.
Window::~Window()
{
    while (!controls_.empty()) {
        controls_.pop_back();
    }
}

Window& KeepWindow(std::unique_ptr<Window> window)
{
    std::string const name = window->ClassName();
    return *(Runtime::instance().windows[name] = std::move(window));
}

void Window::Show()
{
    if (!std::exchange(hasKeyboardOrder_, true)) {
        OrderKeyboard();
        topLevel_->fitToScreen();
    }
    topLevel_->setWindowState(topLevel_->windowState() & ~Qt::WindowMinimized);
    topLevel_->show();
    topLevel_->raise();
    topLevel_->activateWindow();
}

void Window::Close()
{
    auto& windows = Runtime::instance().windows;
    auto const found = windows.find(className_);
    if (found == windows.end() || found->second.get() != this) {
        return;
    }
    topLevel_->hide();
    Program::instance().front.leave(*topLevel_);
    new ClosedWindow(std::move(found->second)); // deletes itself
    windows.erase(found);
    if (windows.empty()) {
        Runtime::instance().end();
    }
}

void Window::MenuBar(class MenuBar& bar)
{
    menuBar_ = &bar;
    bar.ShowIn(*topLevel_);
}

class MenuBar& Window::MenuBar() const
{
    assert(menuBar_ != nullptr);
    return *menuBar_;
}

QWidget* Window::ParentOf(Control* parent) const
{
    return parent == nullptr ? &topLevel_->content() : &parent->Widget();
}

void Window::Register(std::string const& name, std::unique_ptr<Control> control)
{
    [[maybe_unused]] bool const isNew = controlsByName_.emplace(name, control.get()).second;
    assert(isNew);
    controls_.push_back(std::move(control));
}

Control& Window::Find(std::string_view name) const
{
    auto const found = controlsByName_.find(name);
    assert(found != controlsByName_.end());
    return *found->second;
}

/// Sets the Tab order by the tab numbers: the window's own controls, each followed by its children. Focuses the first
/// one that takes keys.
void Window::OrderKeyboard()
{
    auto const isInside = [this](Control const* control) {
        return control->Widget().parentWidget() != &topLevel_->content();
    };
    std::map<QWidget const*, int> numbers;
    for (auto const& control : controls_) {
        numbers[&control->Widget()] = control->TabIndex();
    }
    auto const tabOrder = [&](Control const* control) {
        return isInside(control) ? std::pair(numbers[control->Widget().parentWidget()], control->TabIndex())
                                 : std::pair(control->TabIndex(), -1);
    };
    std::vector<Control*> order;
    std::ranges::transform(controls_, std::back_inserter(order),
                           [](auto const& control) { return control.get(); });
    std::ranges::sort(order, {}, tabOrder);
    for (std::size_t i = 1; i < order.size(); ++i) {
        QWidget::setTabOrder(&order[i - 1]->Widget(), &order[i]->Widget());
    }
    auto const first = std::ranges::find_if(order, [](Control const* control) {
        return (control->Widget().focusPolicy() & Qt::TabFocus) != 0 && !control->Widget().isHidden();
    });
    if (first != order.end()) {
        (*first)->Widget().setFocus(Qt::OtherFocusReason);
    }
}

void _SetProperties(Window& window, WindowProperties const& properties)
{
    TopLevel& top = window.Desktop();
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    flags.setFlag(Qt::WindowCloseButtonHint, properties.hasCloseButton);
    flags.setFlag(Qt::WindowSystemMenuHint, properties.hasCloseButton);
    flags.setFlag(Qt::WindowMinimizeButtonHint, properties.hasMinimizeButton);
    flags.setFlag(Qt::WindowMaximizeButtonHint, properties.hasMaximizeButton);
    top.setWindowFlags(flags);
    top.setWindowTitle(ToQt(properties.title));
    top.content().setFixedSize(properties.width, properties.height);
    if (properties.background) {
        Color const& color = *properties.background;
        top.content().setStyle(&FormStyle());
        top.content().setAutoFillBackground(true);
        top.content().setPalette(FormPalette(QColor(color.red, color.green, color.blue)));
    }
    if (properties.hasCloseButton) {
        top.closeRequested = [&window] { window.Close(); };
    }
}

void _AddMenuHandler(Window& window, std::string_view item, std::function<bool()> handler)
{
    window.Desktop().menuHandlers[std::string(item)] = [handler = std::move(handler)] { Guarded(handler); };
}

void _SetEnableMenuItems(Window& window, std::function<void()> handler)
{
    window.Desktop().enableMenuItems = [handler = std::move(handler)] { Guarded(handler); };
}

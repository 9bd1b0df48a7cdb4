#include "platform/window.h"

#include "platform/qt/controls.h"
#include "platform/qt/guard.h"
#include "platform/qt/open_windows.h"
#include "platform/qt/text.h"
#include "platform/qt/top_level.h"

#include <QCoreApplication>
#include <QMenuBar>

#include <algorithm>
#include <stdexcept>

namespace {

using OpenWindows = std::map<std::string, std::unique_ptr<Window>, std::less<>>;

OpenWindows& Open()
{
    static OpenWindows windows;
    return windows;
}

/// Keeps a closed window until the event at hand is over: it may have closed in a handler of its own.
class ClosedWindow final : public QObject {
public:
    explicit ClosedWindow(std::unique_ptr<Window> window) : QObject(qApp), window_(std::move(window))
    {
        deleteLater();
    }

private:
    std::unique_ptr<Window> window_;
};

} // namespace

void EndOpenWindows()
{
    Open().clear();
}

Window* _GetImplicitWindow(std::string_view className)
{
    auto const found = Open().find(className);
    return found == Open().end() ? nullptr : found->second.get();
}

Window::Window(std::string className)
    : className_(std::move(className)), topLevel_(std::make_unique<TopLevel>(*this))
{
    topLevel_->setObjectName(ToQt(className_));
}

/// Controls end from the last to the first: those inside another one before it.
Window::~Window()
{
    while (!controls_.empty()) {
        controls_.pop_back();
    }
}

Window& KeepWindow(std::unique_ptr<Window> window)
{
    Window& kept = *window;
    Open().insert_or_assign(kept.className_, std::move(window));
    return kept;
}

void Window::Build(Steps steps)
{
    steps_ = std::move(steps);
    steps_.layout();
    steps_.createControls();
    OrderKeyboard();
    steps_.addMenuHandlers();
    Show();
    if (steps_.open) {
        steps_.open();
    }
}

void Window::Show()
{
    topLevel_->setWindowState(topLevel_->windowState() & ~Qt::WindowMinimized);
    topLevel_->show();
    topLevel_->raise();
    topLevel_->activateWindow();
}

void Window::Close()
{
    auto const found = Open().find(className_);
    if (found == Open().end() || found->second.get() != this) {
        return;
    }
    topLevel_->hide();
    topLevel_->leaveFront();
    new ClosedWindow(std::move(found->second)); // ends itself
    Open().erase(found);
    if (Open().empty()) {
        QCoreApplication::exit(0);
    }
}

void Window::CloseByDesktop()
{
    if (hasCloseButton_) {
        Close();
    }
}

void Window::MenuBar(class MenuBar& bar)
{
    menuBar_ = &bar;
    bar.ShowIn(*topLevel_->menuBar());
}

class MenuBar& Window::MenuBar() const
{
    return *menuBar_;
}

bool Window::HandlesMenu(std::string_view item) const
{
    return menuHandlers_.find(item) != menuHandlers_.end();
}

void Window::HandleMenu(std::string_view item)
{
    auto const found = menuHandlers_.find(item);
    if (found != menuHandlers_.end()) {
        Guarded(found->second);
    }
}

void Window::EnableMenuItems()
{
    if (steps_.enableMenuItems) {
        Guarded(steps_.enableMenuItems);
    }
}

QWidget* Window::ParentOf(Control* parent) const
{
    return parent == nullptr ? &topLevel_->content() : parent->widget_.get();
}

void Window::Register(std::string const& name, std::unique_ptr<Control> control)
{
    controlsByName_[name] = control.get();
    controls_.push_back(std::move(control));
}

Control& Window::Find(std::string_view name) const
{
    auto const found = controlsByName_.find(name);
    if (found == controlsByName_.end()) {
        throw std::out_of_range("no control " + std::string(name));
    }
    return *found->second;
}

/// Lays the keyboard order by the tab numbers: the window's own controls, each followed by those inside it.
void Window::OrderKeyboard()
{
    auto const isInside = [this](Control const* control) {
        return control->widget_->parentWidget() != &topLevel_->content();
    };
    std::map<QWidget const*, int> numbers;
    for (auto const& control : controls_) {
        numbers[control->widget_.get()] = control->tabIndex_;
    }
    auto const place = [&](Control const* control) {
        return isInside(control) ? std::pair(numbers[control->widget_->parentWidget()], control->tabIndex_)
                                 : std::pair(control->tabIndex_, -1);
    };
    std::vector<Control*> order;
    std::transform(controls_.begin(), controls_.end(), std::back_inserter(order),
                   [](auto const& control) { return control.get(); });
    std::sort(order.begin(), order.end(), [&](auto* one, auto* other) { return place(one) < place(other); });
    for (std::size_t i = 1; i < order.size(); ++i) {
        QWidget::setTabOrder(order[i - 1]->widget_.get(), order[i]->widget_.get());
    }
    auto const first = std::find_if(order.begin(), order.end(), [](Control const* control) {
        return (control->widget_->focusPolicy() & Qt::TabFocus) != 0 && !control->widget_->isHidden();
    });
    if (first != order.end()) {
        (*first)->widget_->setFocus(Qt::OtherFocusReason);
    }
}

void _SetProperties(Window& window, WindowProperties const& properties)
{
    TopLevel& top = *window.topLevel_;
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    flags.setFlag(Qt::WindowCloseButtonHint, properties.hasCloseButton);
    flags.setFlag(Qt::WindowSystemMenuHint, properties.hasCloseButton);
    flags.setFlag(Qt::WindowMinimizeButtonHint, properties.hasMinimizeButton);
    flags.setFlag(Qt::WindowMaximizeButtonHint, properties.hasMaximizeButton);
    top.setWindowFlags(flags);
    top.setWindowTitle(ToQt(properties.title));
    top.content().setFixedSize(properties.width, properties.height);
    if (properties.background) {
        top.content().setAutoFillBackground(true);
        top.content().setPalette(FormPalette(*properties.background));
    }
    window.hasCloseButton_ = properties.hasCloseButton;
}

void _AddMenuHandler(Window& window, std::string_view item, std::function<bool()> handler)
{
    window.menuHandlers_[std::string(item)] = std::move(handler);
}

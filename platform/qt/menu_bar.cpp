#include "platform/menu_bar.h"

#include "platform/qt/system/runtime_object.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/dialogs.h"
#include "platform/qt/widgets/line_edit.h"
#include "platform/qt/widgets/menu_widgets.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/text_commands.h"
#include "platform/qt/widgets/top_level.h"

#include <algorithm>
#include <cassert>

namespace {

LineEdit* FocusedField(TopLevel const* front)
{
    return front == nullptr ? nullptr : dynamic_cast<LineEdit*>(front->focusedControl());
}

QKeySequence ToKeys(std::string_view shortcut)
{
    return {ToQt(shortcut).replace(QStringLiteral("Cmd+"), QStringLiteral("Ctrl+"))};
}

} // namespace

MenuItem::MenuItem(std::string_view name, std::string_view text, std::string_view shortcut)
    : text_(text), action_(std::make_unique<QAction>())
{
    action_->setObjectName(ToQt(name));
    bool const isSeparator = text == "-";
    action_->setText(isSeparator ? QString() : ToQt(text)); // a separator with text is drawn as a heading
    action_->setSeparator(isSeparator);
    action_->setShortcut(ToKeys(shortcut));
    action_->setAutoRepeat(false); // holding Ctrl+Z must not undo a whole class
    action_->setMenuRole(QAction::NoRole);
    action_->setVisible(!text.empty());
}

MenuItem::~MenuItem() = default;

std::string MenuItem::Name() const
{
    return FromQt(action_->objectName());
}

std::string MenuItem::Text() const
{
    return text_;
}

bool MenuItem::Enabled() const
{
    return action_->isEnabled();
}

void MenuItem::Enabled(bool enabled)
{
    action_->setEnabled(enabled);
}

bool MenuItem::Visible() const
{
    return visible_;
}

void MenuItem::Visible(bool visible)
{
    visible_ = visible;
    action_->setVisible(visible && !text_.empty());
}

void MenuItem::IgnoreNextShortcut()
{
    Program::instance().front.ignoreNextShortcut(*action_);
}

MenuItem& MenuItem::Append(std::unique_ptr<MenuItem> child)
{
    children_.push_back(std::move(child));
    return *children_.back();
}

MenuItem* MenuItem::Find(std::string_view name)
{
    if (Name() == name) {
        return this;
    }
    for (auto const& child : children_) {
        if (MenuItem* const found = child->Find(name)) {
            return found;
        }
    }
    return nullptr;
}

/// Makes the item a menu if any of its children has a caption, otherwise a command.
void MenuItem::BuildMenu(MenuBar& bar)
{
    bool const opens =
        std::ranges::any_of(children_, [](auto const& child) { return !child->Text().empty(); });
    if (opens) {
        menu_ = std::make_unique<MenuWidget>(action_->text());
        action_->setMenu(menu_.get());
        QObject::connect(menu_.get(), &QMenu::aboutToShow, menu_.get(), [this, &bar] {
            bar.Update();
            if (IsDialogOpen()) { // opened by an assistive program
                QMetaObject::invokeMethod(menu_.get(), &QMenu::close, Qt::QueuedConnection);
            }
        });
    } else {
        QObject::connect(action_.get(), &QAction::triggered, action_.get(),
                         [this] { Program::instance().runCommand([this] { MenuBar::Choose(*this); }); });
    }
    for (auto const& child : children_) {
        child->BuildMenu(bar);
        if (opens) {
            menu_->addAction(&child->Action());
        }
    }
}

void MenuItem::BringUpToDate(TopLevel const* front)
{
    for (auto const& child : children_) {
        child->BringUpToDate(front);
    }
    if (!AutoEnabled) {
        return;
    }
    if (TextCommand const* const command = FindTextCommand(Name())) {
        LineEdit const* const field = FocusedField(front);
        Enabled(field != nullptr && !(command->needsEditable && field->isReadOnly()));
    } else {
        bool const isQuit = dynamic_cast<QuitMenuItem*>(this) != nullptr;
        Enabled(menu_ != nullptr || isQuit || (front != nullptr && front->menuHandlers.contains(Name())));
    }
}

AppleMenuItem::AppleMenuItem(std::string_view name, std::string_view text, std::string_view shortcut)
    : MenuItem(name, text, shortcut)
{
    Action().setMenuRole(text.empty() ? QAction::NoRole : QAction::AboutRole);
}

QuitMenuItem::QuitMenuItem(std::string_view name, std::string_view text, std::string_view shortcut)
    : MenuItem(name, text, shortcut)
{
    Action().setMenuRole(QAction::QuitRole);
}

MenuBar::MenuBar() = default;
MenuBar::~MenuBar() = default;

MenuItem& MenuBar::Append(std::unique_ptr<MenuItem> item)
{
    items_.push_back(std::move(item));
    return *items_.back();
}

MenuItem& MenuBar::Item(std::string_view name) const
{
    MenuItem* found = nullptr;
    for (auto const& item : items_) {
        found = found == nullptr ? item->Find(name) : found;
    }
    assert(found != nullptr);
    return *found;
}

void MenuBar::ShowIn(TopLevel& window)
{
    for (auto const& item : items_) {
        if (!built_) {
            item->BuildMenu(*this);
        }
        window.menuBar()->addAction(&item->Action());
    }
    built_ = true;
    window.updateMenuBar = [this] { Update(); };
    window.addMenuKeys();
}

void MenuBar::Update()
{
    TopLevel const* const front = Program::instance().front.window();
    for (auto const& item : items_) {
        item->BringUpToDate(front);
    }
    if (front != nullptr && front->enableMenuItems) {
        front->enableMenuItems();
    }
}

/// Runs a command here, or through the handler of the window in front.
void MenuBar::Choose(MenuItem const& item)
{
    if (IsDialogOpen()) {
        return;
    }
    TopLevel* const front = Program::instance().front.window();
    if (dynamic_cast<QuitMenuItem const*>(&item) != nullptr) {
        Runtime::instance().end();
    } else if (TextCommand const* const command = FindTextCommand(item.Name())) {
        if (LineEdit* const field = FocusedField(front)) {
            command->run(*field);
        }
    } else if (front != nullptr) {
        front->beginCommand();
        auto const handler = front->menuHandlers.find(item.Name());
        if (handler != front->menuHandlers.end()) {
            handler->second();
        }
    }
}

MenuBar& KeepMenuBar(std::unique_ptr<MenuBar> bar)
{
    return *Runtime::instance().menuBars.emplace_back(std::move(bar));
}

#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class MenuBar;
class QAction;
class QMenu;
class TopLevel;

/// One item of a menu bar. An item without a caption is never shown but keeps its properties; the caption
/// "-" is a separator. An item whose children have captions is a menu, any other is a command.
class MenuItem {
public:
    /// "Cmd" in a shortcut is the platform's command key.
    MenuItem(std::string_view name, std::string_view text, std::string_view shortcut);
    virtual ~MenuItem();
    MenuItem(MenuItem const&) = delete;
    MenuItem& operator=(MenuItem const&) = delete;

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string Text() const;
    [[nodiscard]] bool Enabled() const;
    void Enabled(bool enabled);

    /// If set, the item is enabled each time the bar is brought up to date and there is something for it to do.
    bool AutoEnabled = true;

    [[nodiscard]] bool Visible() const;
    /// An item without a caption stays hidden all the same.
    void Visible(bool visible);

    /// The next press of the shortcut does nothing, unless the user types something, chooses a command or moves
    /// the focus first. Choosing the item itself always acts.
    void IgnoreNextShortcut();

    MenuItem& Append(std::unique_ptr<MenuItem> child);

protected:
    [[nodiscard]] QAction& Action() const { return *action_; }

private:
    friend class MenuBar;

    void BuildMenu(MenuBar& bar);
    void BringUpToDate(TopLevel const* front);
    [[nodiscard]] MenuItem* Find(std::string_view name);

    std::string text_;
    std::unique_ptr<QAction> action_;
    std::unique_ptr<QMenu> menu_; ///< what the item opens; none for a command
    std::vector<std::unique_ptr<MenuItem>> children_;
    bool visible_ = true;
};

/// An item that belongs to the application's own menu on platforms that have one.
class AppleMenuItem final : public MenuItem {
public:
    AppleMenuItem(std::string_view name, std::string_view text, std::string_view shortcut);
};

/// The item that ends the process; the platform carries it out.
class QuitMenuItem final : public MenuItem {
public:
    QuitMenuItem(std::string_view name, std::string_view text, std::string_view shortcut);
};

/// A menu bar that one or several windows show. A command goes to the handler of the window in front; one
/// that has none there is disabled. The items EditCut, EditCopy, EditPaste and EditClear need no handler: they
/// act on the focused text field and are disabled if there is none.
class MenuBar {
public:
    MenuBar();
    virtual ~MenuBar();
    MenuBar(MenuBar const&) = delete;
    MenuBar& operator=(MenuBar const&) = delete;

    /// The item of that name at any level; there must be one.
    [[nodiscard]] MenuItem& Item(std::string_view name) const;
    MenuItem& Append(std::unique_ptr<MenuItem> item);

    /// Shows the bar in a window.
    void ShowIn(TopLevel& window);

private:
    friend class MenuItem;

    void Update();
    static void Choose(MenuItem const& item);

    std::vector<std::unique_ptr<MenuItem>> items_;
    bool built_ = false;
};

/// Takes ownership of a menu bar until the process ends.
MenuBar& KeepMenuBar(std::unique_ptr<MenuBar> bar);

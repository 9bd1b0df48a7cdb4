#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class MenuBar;
class QAction;
class QMenu;
class TopLevel;

/// An item without a text is never shown; the text "-" is a separator. An item with children that have a text is a
/// menu, any other is a command.
class MenuItem {
public:
    /// "Cmd" in a shortcut is Command on macOS and Ctrl elsewhere.
    MenuItem(std::string_view name, std::string_view text, std::string_view shortcut);
    virtual ~MenuItem();
    MenuItem(MenuItem const&) = delete;
    MenuItem& operator=(MenuItem const&) = delete;

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string Text() const;
    [[nodiscard]] bool Enabled() const;
    void Enabled(bool enabled);

    /// Each update of the bar enables the item if there is a handler for it, else disables it.
    bool AutoEnabled = true;

    [[nodiscard]] bool Visible() const;
    /// An item without a text stays hidden.
    void Visible(bool visible);

    /// The next press of the shortcut does nothing, unless the user types, chooses a command or moves the
    /// focus first. The item itself always acts.
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
    std::unique_ptr<QMenu> menu_; ///< null for a command
    std::vector<std::unique_ptr<MenuItem>> children_;
    bool visible_ = true;
};

/// Moves to the application menu on macOS.
class AppleMenuItem final : public MenuItem {
public:
    AppleMenuItem(std::string_view name, std::string_view text, std::string_view shortcut);
};

/// Ends the program; needs no handler.
class QuitMenuItem final : public MenuItem {
public:
    QuitMenuItem(std::string_view name, std::string_view text, std::string_view shortcut);
};

/// Shared by the windows that show it. A command calls the handler of the window in front, and is disabled if that has
/// none. EditCut, EditCopy, EditPaste and EditClear need no handler: they act on the focused text field, and are
/// disabled without one.
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

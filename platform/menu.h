#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class TopLevel;
class MenuBar;

/// One item of a menu bar. An item without a caption is never shown but keeps its properties; the caption
/// "-" is a separator. An item whose children have captions is a menu, any other is a command.
class MenuItem {
public:
    /// "Cmd" in a shortcut stands for the platform's command key.
    MenuItem(std::string_view name, std::string_view text, std::string_view shortcut);
    virtual ~MenuItem();
    MenuItem(MenuItem const&) = delete;
    MenuItem& operator=(MenuItem const&) = delete;

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string Text() const;
    [[nodiscard]] bool Enabled() const;
    void Enabled(bool enabled);

    /// On: each time the bar is brought up to date, the item is on if it has something to do.
    bool AutoEnabled = true;

    [[nodiscard]] bool Visible() const;
    /// Off hides the item whatever its caption.
    void Visible(bool visible);

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

/// An item that belongs to the application's own menu where the platform has one.
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
/// that has none there is off. The items EditCut, EditCopy, EditPaste and EditClear need no handler: they
/// act on the focused text field and are off where there is none.
class MenuBar {
public:
    MenuBar();
    virtual ~MenuBar();
    MenuBar(MenuBar const&) = delete;
    MenuBar& operator=(MenuBar const&) = delete;

    /// The item of that name at any level; there must be one.
    [[nodiscard]] MenuItem& Item(std::string_view name) const;
    MenuItem& Append(std::unique_ptr<MenuItem> item);

private:
    friend class MenuItem;
    friend class TopLevel;
    friend class Window;

    void ShowIn(QMenuBar& bar);
    void Update();
    static void Choose(MenuItem const& item);

    std::vector<std::unique_ptr<MenuItem>> items_;
    bool built_ = false;
};

/// Gives a menu bar to the toolkit, which keeps it until the process ends.
MenuBar& KeepMenuBar(std::unique_ptr<MenuBar> bar);

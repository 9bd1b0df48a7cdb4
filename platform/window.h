#pragma once

#include "platform/color.h"
#include "platform/control.h"
#include "platform/menu.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class TopLevel;

/// What a window's layout states of it; sizes are those of its content, in device-independent pixels.
struct WindowProperties {
    std::string_view title;
    int width = 0;
    int height = 0;
    bool hasCloseButton = false;
    bool hasMinimizeButton = false;
    bool hasMaximizeButton = false;
    std::optional<Color> background = {}; ///< without one the platform's window colour
};

/// A plain window of fixed size. It keeps its controls by name and its menu handlers by item. The toolkit
/// owns every open window: see KeepWindow and _GetImplicitWindow.
class Window {
public:
    virtual ~Window();
    Window(Window const&) = delete;
    Window& operator=(Window const&) = delete;

    /// Makes the window visible and brings it to the front.
    void Show();
    /// Closes the window and ends its controls, as soon as the event at hand is over.
    void Close();

    /// The bar that the window shows above its content.
    void MenuBar(class MenuBar& bar);
    [[nodiscard]] class MenuBar& MenuBar() const;

protected:
    /// The steps in which a window is built, in their order, and the event that its menu bar asks for.
    struct Steps {
        std::function<void()> layout;
        std::function<void()> createControls;
        std::function<void()> addMenuHandlers;
        std::function<void()> open;
        std::function<void()> enableMenuItems;
    };

    explicit Window(std::string className);

    /// Runs the steps; the window is visible from the moment that its controls and handlers stand.
    void Build(Steps steps);

    /// Makes a control and registers it under its name, on the window or inside another control.
    template <class Type>
    Type& Add(std::string const& name, Control* parent = nullptr)
    {
        auto control = std::make_unique<Type>(ParentOf(parent), name);
        Type& result = *control;
        Register(name, std::move(control));
        return result;
    }

    /// The control that was registered under this name as this type.
    template <class Type>
    [[nodiscard]] Type& Get(std::string_view name) const
    {
        return static_cast<Type&>(Find(name));
    }

private:
    friend class TopLevel;
    friend class MenuBar;
    friend class MenuItem;
    friend Window& KeepWindow(std::unique_ptr<Window> window);
    friend void _SetProperties(Window& window, WindowProperties const& properties);
    friend void _AddMenuHandler(Window& window, std::string_view item, std::function<bool()> handler);

    [[nodiscard]] QWidget* ParentOf(Control* parent) const;
    void Register(std::string const& name, std::unique_ptr<Control> control);
    [[nodiscard]] Control& Find(std::string_view name) const;
    void OrderKeyboard();
    void CloseByDesktop();
    [[nodiscard]] bool HandlesMenu(std::string_view item) const;
    void HandleMenu(std::string_view item);
    void EnableMenuItems();

    std::string className_;
    Steps steps_;
    class MenuBar* menuBar_ = nullptr;
    bool hasCloseButton_ = false;
    std::unique_ptr<TopLevel> topLevel_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::map<std::string, Control*, std::less<>> controlsByName_;
    std::map<std::string, std::function<bool()>, std::less<>> menuHandlers_;
};

/// The open window of this class, or null. A window that was closed no longer counts.
Window* _GetImplicitWindow(std::string_view className);

/// Gives a new window to the toolkit, which keeps it until it closes.
Window& KeepWindow(std::unique_ptr<Window> window);

/// Applies a stored set of properties to a window.
void _SetProperties(Window& window, WindowProperties const& properties);

/// Registers what the window does when it is in front and the user chooses the item of this name.
void _AddMenuHandler(Window& window, std::string_view item, std::function<bool()> handler);

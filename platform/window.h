#pragma once

#include "platform/color.h"
#include "platform/control.h"
#include "platform/menu_bar.h"

#include <cassert>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class TopLevel;

/// Sizes are those of the content, in device-independent pixels.
struct WindowProperties {
    std::string_view title;
    int width;
    int height;
    bool hasCloseButton = false;
    bool hasMinimizeButton = false;
    bool hasMaximizeButton = false;
    std::optional<Color> background = {}; ///< without one the platform's window colour
};

/// A window of fixed size, which owns its controls. The run-time owns every open window: see KeepWindow. A window class
/// builds itself in its constructor, in this order: layout, controls, menu handlers, Show, its own opening event.
class Window {
public:
    virtual ~Window();
    Window(Window const&) = delete;
    Window& operator=(Window const&) = delete;

    /// Shows the window in front. The first call sets the keyboard order of its controls.
    void Show();
    /// Closes the window. It is destroyed once no handler runs and the current event is over.
    void Close();

    void MenuBar(class MenuBar& bar);
    [[nodiscard]] class MenuBar& MenuBar() const;

    [[nodiscard]] std::string const& ClassName() const { return className_; }
    [[nodiscard]] TopLevel& Desktop() const { return *topLevel_; }

protected:
    explicit Window(std::string className);

    /// Creates a control, registers it under its name, on the window or inside another control, and applies its
    /// properties.
    template <class Type>
    void Add(std::string const& name, ControlProperties const& properties, Control* parent = nullptr)
    {
        QWidget* const inside = ParentOf(parent);
        std::unique_ptr<Type> control;
        if constexpr (requires { Type(inside, name, properties); }) {
            control = std::make_unique<Type>(inside, name, properties);
        } else {
            control = std::make_unique<Type>(inside, name);
        }
        _SetProperties(*control, properties);
        Register(name, std::move(control));
    }

    /// There must be a control of this name and type.
    template <class Type>
    [[nodiscard]] Type& Get(std::string_view name) const
    {
        Control& found = Find(name);
        assert(dynamic_cast<Type*>(&found) != nullptr);
        return static_cast<Type&>(found);
    }

private:
    [[nodiscard]] QWidget* ParentOf(Control* parent) const;
    void Register(std::string const& name, std::unique_ptr<Control> control);
    [[nodiscard]] Control& Find(std::string_view name) const;
    void OrderKeyboard();

    std::string className_;
    class MenuBar* menuBar_ = nullptr;
    std::unique_ptr<TopLevel> topLevel_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::map<std::string, Control*, std::less<>> controlsByName_;
    bool hasKeyboardOrder_ = false;
};

/// The open window of this class, or null.
Window* _GetImplicitWindow(std::string_view className);

/// Takes ownership of a new window until it closes.
Window& KeepWindow(std::unique_ptr<Window> window);

/// Applies a stored set of properties to a window.
void _SetProperties(Window& window, WindowProperties const& properties);

/// Registers the window's handler of a menu item; it is called while the window is in front.
void _AddMenuHandler(Window& window, std::string_view item, std::function<bool()> handler);

/// Registers what enables the window's menu items; called on each update of the menu bar while the window is in front.
void _SetEnableMenuItems(Window& window, std::function<void()> handler);

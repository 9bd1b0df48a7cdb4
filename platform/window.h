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

/// What a window's layout states of it; sizes are those of its content, in device-independent pixels.
struct WindowProperties {
    std::string_view title;
    int width;
    int height;
    bool hasCloseButton = false;
    bool hasMinimizeButton = false;
    bool hasMaximizeButton = false;
    std::optional<Color> background = {}; ///< without one the platform's window colour
};

/// A plain window of fixed size. It keeps its controls by name. The run-time owns every open window: see
/// KeepWindow and _GetImplicitWindow. A window class builds itself in its constructor, in this order: its layout,
/// its controls, its menu handlers, Show, and its own event of opening.
class Window {
public:
    virtual ~Window();
    Window(Window const&) = delete;
    Window& operator=(Window const&) = delete;

    /// Makes the window visible and brings it to the front. At the first time its controls get their keyboard
    /// order.
    void Show();
    /// Closes the window and destroys its controls, as soon as the current event is over.
    void Close();

    /// The bar that the window shows above its content.
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

    /// The control that was registered under this name; there must be one, of this type.
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

/// The open window of this class, or null. A closed window no longer counts.
Window* _GetImplicitWindow(std::string_view className);

/// Takes ownership of a new window until it closes.
Window& KeepWindow(std::unique_ptr<Window> window);

/// Applies a stored set of properties to a window.
void _SetProperties(Window& window, WindowProperties const& properties);

/// Registers what the window does when it is in front and the user chooses the item of this name.
void _AddMenuHandler(Window& window, std::string_view item, std::function<bool()> handler);

/// Registers what enables the window's menu items; called each time the menu bar is brought up to date while the
/// window is in front.
void _SetEnableMenuItems(Window& window, std::function<void()> handler);

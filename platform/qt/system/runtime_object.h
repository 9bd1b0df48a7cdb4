#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

class Application;
class MenuBar;
class QApplication;
class Window;

/// Owns what lives as long as the program runs, and its exit status. It is never destroyed: at a sudden exit, such as
/// when the display is lost, no destructor may use Qt.
class Runtime final {
public:
    static Runtime& instance();
    Runtime(Runtime const&) = delete;
    Runtime& operator=(Runtime const&) = delete;

    /// The open windows by class name. Closing the last one ends the program.
    std::map<std::string, std::unique_ptr<Window>, std::less<>> windows;
    std::vector<std::unique_ptr<MenuBar>> menuBars;
    std::unique_ptr<Application> application;
    int exitStatus = 0;
    bool isEnding = false; ///< end was called

    /// Creates the application object of a program with this name.
    void start(char const* programName);
    /// Runs the event loop, unless the program is already ending.
    void run();
    /// Ends the event loops. Open dialogs are cancelled, open questions answered with No, and no new ones open.
    void end();
    /// Destroys the windows, then the menu bars, the application object and Qt itself.
    void finish();

private:
    Runtime();
    ~Runtime();

    std::unique_ptr<QApplication> toolkit_;
    std::string name_;
    std::vector<char*> arguments_; ///< Qt keeps references to them
    int argumentCount_ = 1;
};

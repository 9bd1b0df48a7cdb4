#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

class Application;
class MenuBar;
class QApplication;
class Window;

/// Owns what lives as long as the program runs, and its exit status. The object itself is never destroyed: at a
/// sudden exit, when a display is lost for one, nothing that leans on the toolkit may run any more.
class Runtime final {
public:
    static Runtime& instance();
    Runtime(Runtime const&) = delete;
    Runtime& operator=(Runtime const&) = delete;

    /// The open windows by their class names. Closing the last one ends the program.
    std::map<std::string, std::unique_ptr<Window>, std::less<>> windows;
    std::vector<std::unique_ptr<MenuBar>> menuBars;
    std::unique_ptr<Application> application;
    int exitStatus = 0;
    bool isEnding = false; ///< since a call of end

    /// Creates the toolkit's application object for a program of this name.
    void start(char const* programName);
    /// Runs the event loop, unless the program is to end already.
    void run();
    /// Ends the event loops. Open dialogs count as cancelled, open questions as answered with No, and no further
    /// one opens.
    void end();
    /// Destroys the windows, then the menu bars, the application object and last the toolkit.
    void finish();

private:
    Runtime();
    ~Runtime();

    std::unique_ptr<QApplication> toolkit_;
    std::string name_;
    std::vector<char*> arguments_; ///< the toolkit keeps references to them
    int argumentCount_ = 1;
};

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QFile;

// Text files are UTF-8. Lines are written with the platform's line end; reading accepts any and drops a byte order
// mark. A fault is the reason of a failure in words, or empty.

class TextInputStream {
public:
    explicit TextInputStream(std::unique_ptr<QFile> file);
    ~TextInputStream();
    TextInputStream(TextInputStream const&) = delete;
    TextInputStream& operator=(TextInputStream const&) = delete;

    /// Returns the next line without its line end; empty past the end of the file and after a fault.
    std::string ReadLine();
    /// Why reading failed: a disk error, or a line too long for a text file.
    [[nodiscard]] std::string const& Fault() const { return fault_; }
    void Close();

private:
    [[nodiscard]] bool Fill();

    std::unique_ptr<QFile> file_;
    std::string buffer_; ///< read from the file and not yet returned
    std::string fault_;
};

/// Nothing reaches the disk before Close, which replaces the old file atomically; after a fault the old file is
/// unchanged.
class TextOutputStream {
public:
    TextOutputStream(std::string path, bool makesFolder);

    void WriteLine(std::string_view text);
    /// Writes the file. Returns the fault.
    [[nodiscard]] std::string Close();

private:
    std::string path_;
    bool makesFolder_;
    std::string text_;
};

/// A path, whether or not anything exists there.
class FolderItem {
public:
    explicit FolderItem(std::string path, bool makesFolder = false);

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string const& Path() const { return path_; }
    [[nodiscard]] bool IsFolder() const;
    /// The item of that name in this folder; with followAlias what a link points to.
    [[nodiscard]] FolderItem Child(std::string_view name, bool followAlias) const;

    /// Creates or replaces the file.
    [[nodiscard]] TextOutputStream CreateTextFile() const;
    /// Opens a plain file. Returns null and sets the fault if that fails.
    [[nodiscard]] std::unique_ptr<TextInputStream> OpenAsTextFile(std::string& fault) const;

private:
    std::string path_;
    bool makesFolder_; ///< a save creates its folder
};

/// A bare name is in the program's settings folder. Returns nothing if the system has no such folder. The mode must
/// be 0.
std::optional<FolderItem> GetFolderItem(std::string_view path, int mode);

/// The root of a volume, counted from 0; past the last one, the system's root.
FolderItem Volume(int index);

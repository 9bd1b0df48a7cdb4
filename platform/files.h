#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QFile;

// Text files. They are UTF-8; written lines end as the platform ends them, reading takes every line end and
// drops a byte order mark. A fault is a reason in words, empty if there was none.

/// A file being read, line by line.
class TextInputStream {
public:
    explicit TextInputStream(std::unique_ptr<QFile> file);
    ~TextInputStream();
    TextInputStream(TextInputStream const&) = delete;
    TextInputStream& operator=(TextInputStream const&) = delete;

    /// Returns the next line without its end; an empty text past the end of the file and after a fault.
    std::string ReadLine();
    /// Why the file can't be read on: an error of the disk, or a line too long to be one of a text.
    [[nodiscard]] std::string const& Fault() const { return fault_; }
    void Close();

private:
    [[nodiscard]] bool Fill();

    std::unique_ptr<QFile> file_;
    std::string buffer_; ///< read from the file and not yet returned
    std::string fault_;
};

/// A file being written. Nothing reaches the disk before Close, which replaces the old file atomically; after a
/// fault the old file is as it was.
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

/// A place in the file system, whether or not there is something.
class FolderItem {
public:
    explicit FolderItem(std::string path, bool makesFolder = false);

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string const& Path() const { return path_; }
    [[nodiscard]] bool IsFolder() const;
    /// The item of that name in this folder; with followAlias a link counts as what it points to.
    [[nodiscard]] FolderItem Child(std::string_view name, bool followAlias) const;

    /// Creates the file, or replaces the one that is there.
    [[nodiscard]] TextOutputStream CreateTextFile() const;
    /// Opens a plain file. Returns null and sets the fault if that can't be done.
    [[nodiscard]] std::unique_ptr<TextInputStream> OpenAsTextFile(std::string& fault) const;

private:
    std::string path_;
    bool makesFolder_; ///< a save creates the folder that it is in
};

/// The item for a path; a bare name is in the folder of the program's own settings. Nothing if there is no such
/// folder. The mode, how an alias is treated elsewhere, must be 0.
std::optional<FolderItem> GetFolderItem(std::string_view path, int mode);

/// The root of a volume, counted from 0; beyond the last one it is the system's root.
FolderItem Volume(int index);

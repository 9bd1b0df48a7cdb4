#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QFile;

// Text files. They are UTF-8; lines end as the platform ends them on writing, reading takes every line end
// and drops a byte order mark. A fault is a reason in words, empty where all went well.

/// A file being read, line by line.
class TextInputStream {
public:
    explicit TextInputStream(std::unique_ptr<QFile> file);
    ~TextInputStream();
    TextInputStream(TextInputStream const&) = delete;
    TextInputStream& operator=(TextInputStream const&) = delete;

    /// The next line without its end; an empty text past the end of the file and after a fault.
    std::string ReadLine();
    /// Why the file can't be read on: an error of the disk, or a line too long to be one of a text.
    [[nodiscard]] std::string const& Fault() const { return fault_; }
    void Close();

private:
    [[nodiscard]] bool Fill();

    std::unique_ptr<QFile> file_;
    std::string buffer_; ///< what was read from the file and not yet given out
    std::string fault_;
    bool isStart_ = true;
};

/// A file being written. Nothing of it is seen before Close, which puts the whole text in the place of the
/// old file at one stroke; after a fault the old file stands as it was.
class TextOutputStream {
public:
    TextOutputStream(std::string path, bool makesFolder);

    void WriteLine(std::string_view text);
    /// Writes the file. Gives the fault.
    [[nodiscard]] std::string Close();

private:
    std::string path_;
    bool makesFolder_;
    std::string text_;
};

/// A place in the file system, whether or not something stands there.
class FolderItem {
public:
    explicit FolderItem(std::string path, bool makesFolder = false);

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string const& Path() const { return path_; }
    [[nodiscard]] bool IsFolder() const;
    /// The item of that name in this folder; an alias counts as what it points to.
    [[nodiscard]] FolderItem Child(std::string_view name, bool followAlias) const;

    /// Creates the file, or replaces the one that stands there.
    [[nodiscard]] TextOutputStream CreateTextFile() const;
    /// Opens a plain file; null and the fault where that can't be done.
    [[nodiscard]] std::unique_ptr<TextInputStream> OpenAsTextFile(std::string& fault) const;

private:
    std::string path_;
    bool makesFolder_; ///< the folder that it stands in is made with it
};

/// The item for a path. A bare name stands in the folder of the program's own settings. Mode 0 is the only
/// one.
std::optional<FolderItem> GetFolderItem(std::string_view path, int mode);

/// The root of a volume; 0 is the first one.
FolderItem Volume(int index);

#include "platform/files.h"

#include "platform/qt/system/native.h"
#include "platform/qt/system/save_file.h"
#include "platform/qt/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {

constexpr std::size_t kMaxLine = 65536; // bytes
constexpr qint64 kChunk = 4096;

} // namespace

TextInputStream::TextInputStream(std::unique_ptr<QFile> file) : file_(std::move(file)) {}

TextInputStream::~TextInputStream() = default;

/// Reads the next chunk. False at the end of the file and after a fault.
bool TextInputStream::Fill()
{
    QByteArray chunk(kChunk, '\0');
    qint64 const count = file_->read(chunk.data(), kChunk);
    if (count < 0) {
        fault_ = FromQt(file_->errorString());
        return false;
    }
    buffer_.append(chunk.constData(), static_cast<std::size_t>(count));
    return count > 0;
}

std::string TextInputStream::ReadLine()
{
    std::size_t end = buffer_.find_first_of("\r\n");
    // A CR at the very end of what was read may be the first half of a line end.
    while (fault_.empty() && buffer_.size() <= kMaxLine &&
           (end == std::string::npos || end + 1 == buffer_.size()) && Fill()) {
        end = buffer_.find_first_of("\r\n", end == std::string::npos ? 0 : end);
    }
    std::size_t const length = std::min(end, buffer_.size());
    if (length > kMaxLine) {
        fault_ = "it holds a line that is too long";
    }
    if (!fault_.empty()) {
        return "";
    }
    std::string const bytes = buffer_.substr(0, length);
    bool const isPair = buffer_.compare(length, 2, "\r\n") == 0;
    buffer_.erase(0, length + (isPair ? 2 : 1));
    return FromQt(ToQt(bytes)); // without a byte order mark, and with invalid bytes replaced
}

void TextInputStream::Close()
{
    file_->close();
}

TextOutputStream::TextOutputStream(std::string path, bool makesFolder)
    : path_(std::move(path)), makesFolder_(makesFolder)
{
}

void TextOutputStream::WriteLine(std::string_view text)
{
    text_.append(text).append(kLineEnd);
}

std::string TextOutputStream::Close()
{
    QString const path = ToQt(path_);
    if (makesFolder_ && !QDir().mkpath(QFileInfo(path).path())) {
        return "its folder could not be made";
    }
    return FromQt(ReplaceFile(path, text_));
}

FolderItem::FolderItem(std::string path, bool makesFolder) : path_(std::move(path)), makesFolder_(makesFolder)
{
}

std::string FolderItem::Name() const
{
    return FromQt(QFileInfo(ToQt(path_)).fileName());
}

bool FolderItem::IsFolder() const
{
    return QFileInfo(ToQt(path_)).isDir();
}

FolderItem FolderItem::Child(std::string_view name, bool followAlias) const
{
    QFileInfo const child(QDir(ToQt(path_)), ToQt(name));
    bool const isAlias = followAlias && child.isSymLink();
    return FolderItem(FromQt(isAlias ? child.symLinkTarget() : child.filePath()));
}

TextOutputStream FolderItem::CreateTextFile() const
{
    return {path_, makesFolder_};
}

std::unique_ptr<TextInputStream> FolderItem::OpenAsTextFile(std::string& fault) const
{
    QString const path = ToQt(path_);
    QFileInfo const info(path);
    if (info.exists() && !info.isFile()) { // opening a pipe or a device could block forever
        fault = "it is not a plain file";
        return nullptr;
    }
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly)) {
        fault = FromQt(file->errorString());
        return nullptr;
    }
    return std::make_unique<TextInputStream>(std::move(file));
}

std::optional<FolderItem> GetFolderItem(std::string_view path, int /*mode*/)
{
    QFileInfo const info(ToQt(path));
    if (info.isAbsolute()) {
        return FolderItem(std::string(path));
    }
    QString const settings = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    if (settings.isEmpty()) {
        return std::nullopt;
    }
    return FolderItem(FromQt(QDir(settings).filePath(ToQt(path))), true);
}

FolderItem Volume(int index)
{
    QFileInfoList const roots = QDir::drives();
    return FolderItem(FromQt(index < roots.size() ? roots[index].filePath() : QDir::rootPath()));
}

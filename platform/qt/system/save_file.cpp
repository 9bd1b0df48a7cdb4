#include "platform/qt/system/save_file.h"

#include "platform/qt/system/native.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// Returns the file system's reason, or ours where that would mislead.
QString Explain(QString const& path, QString const& reason)
{
    constexpr int kMaxName = 248; // bytes; the temporary file's name has seven more, and 255 is the limit
    if (QFile::encodeName(QFileInfo(path).fileName()).size() > kMaxName) {
        return QStringLiteral("its name is too long");
    }
    return reason;
}

/// Writes and flushes the bytes. Without the flush the toolkit would notice a full disk only after replacing the old
/// file.
QString WriteAll(QSaveFile& file, QByteArrayView bytes)
{
    qint64 const written = file.write(bytes.data(), bytes.size());
    if (written == bytes.size()) {
        return FlushToDisk(file.handle());
    }
    bool const isPartial = written >= 0;
    return isPartial ? QStringLiteral("there is no space left for it") : file.errorString();
}

} // namespace

QString ReplaceFile(QString const& path, QByteArrayView bytes)
{
    QFileInfo const old(path);
    if (old.exists() && !old.isFile()) {
        return QStringLiteral("it is not a plain file");
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return Explain(path, file.errorString());
    }
    QString fault = KeepGroup(path, file.handle());
    if (fault.isEmpty()) {
        fault = WriteAll(file, bytes);
    }
    if (!fault.isEmpty()) {
        file.cancelWriting();
        return Explain(path, fault);
    }
    return file.commit() ? QString() : Explain(path, file.errorString());
}

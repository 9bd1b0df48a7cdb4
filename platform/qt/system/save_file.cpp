#include "platform/qt/system/save_file.h"

#include "platform/qt/system/native.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// The file system's reason, or ours where its own would mislead.
QString Explain(QString const& path, QString const& reason)
{
    constexpr int kMaxName = 248; // bytes; the temporary beside the file needs seven more, of 255
    if (QFile::encodeName(QFileInfo(path).fileName()).size() > kMaxName) {
        return QStringLiteral("its name is too long");
    }
    return reason;
}

/// Writes and flushes. Left to itself the toolkit would notice a full disk only after the old file is gone.
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
    QFileInfo const place(path);
    if (place.exists() && !place.isFile()) {
        return QStringLiteral("it is not a plain file");
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return Explain(path, file.errorString());
    }
    QString const fault = WriteAll(file, bytes);
    if (!fault.isEmpty()) {
        file.cancelWriting();
        return Explain(path, fault);
    }
    return file.commit() ? QString() : Explain(path, file.errorString());
}

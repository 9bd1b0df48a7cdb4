#pragma once

#include <QByteArrayView>
#include <QString>

/// Replaces a file's content atomically: the old file stays until the last byte is on the disk. A symbolic link stays
/// a link; KeepGroup says what becomes of group and permissions. Returns the reason for a failure, or an empty string.
QString ReplaceFile(QString const& path, QByteArrayView bytes);

#pragma once

#include <QByteArrayView>
#include <QString>

/// Replaces a file by these bytes atomically: until the last byte is on the disk the old file is there. A link stays
/// a link, permissions stay. Returns the reason of a failure, empty if there was none.
QString ReplaceFile(QString const& path, QByteArrayView bytes);

#pragma once

#include <QByteArray>
#include <QString>

/// Puts these bytes in the place of a file at one stroke: until the last byte is on the disk the old file
/// stands. A link stays a link, permissions stay. Gives the reason of a failure, empty if there was none.
QString SaveWhole(QString const& path, QByteArray const& bytes);

#pragma once

#include "platform/qt/list_model.h"

#include <QTableView>

/// The widget of a list: plain rows without grid, header or elided texts.
class ListView final : public QTableView {
public:
    explicit ListView(QWidget* parent);

    [[nodiscard]] ListModel& rows() { return rows_; }
    [[nodiscard]] ListModel const& rows() const { return rows_; }
    void setColumnWidths(QString const& widths);

private:
    ListModel rows_;
};

#pragma once

#include "platform/qt/widgets/list_model.h"

#include <QTableView>

/// The widget of a list: plain rows without grid, header or elided texts.
class ListView final : public QTableView {
public:
    explicit ListView(QWidget* parent);
    ~ListView() override;
    ListView(ListView const&) = delete;
    ListView& operator=(ListView const&) = delete;

    [[nodiscard]] ListModel& rows() { return *rows_; }
    [[nodiscard]] ListModel const& rows() const { return *rows_; }
    void setColumnWidths(QString const& widths);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void copySelectedRows() const;

    ListModel* rows_;
};

#include "bench/first_paint.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>

#include <string_view>

// The floor of a start: a window with the controls of the form's table, all stock ones, hidden where ours are, and a
// menu bar with as many items as ours shows.

namespace {

constexpr struct {
    std::string_view type;
    char const* caption;
    int left, top, width, height;
    bool isHidden;
} kControls[] = {
#define CONTROL(tab, type, name, caption, left, top, width, height, style)                                   \
    {#type, caption, left, top, width, height, std::string_view(#style).starts_with("hidden")},
#include "frame/mainscreen.def"
};

constexpr struct {
    std::string_view under;
    std::string_view text;
} kMenu[] = {
#define ITEM(under, name, type, text, shortcut) {under, text},
#include "frame/menu.def"
};

QWidget* Stock(std::string_view type, QString const& caption, QWidget* parent)
{
    if (type == "TextField") {
        return new QLineEdit(QStringLiteral("100"), parent);
    }
    if (type == "Label") {
        return new QLabel(caption, parent);
    }
    if (type == "Listbox") {
        return new QTableView(parent);
    }
    if (type == "CheckBox") {
        return new QCheckBox(caption, parent);
    }
    if (type == "GroupBox") {
        return new QGroupBox(caption, parent);
    }
    return new QPushButton(caption, parent);
}

void AddMenu(QMenuBar& bar)
{
    QMenu* menu = nullptr;
    for (auto const& [under, text] : kMenu) {
        QString const caption = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
        if (under.empty() && !text.empty()) {
            menu = bar.addMenu(caption);
        } else if (menu != nullptr && !text.empty()) {
            menu->addAction(caption);
        }
    }
}

} // namespace

int main(int count, char** arguments)
{
    QApplication const application(count, arguments);
    EndAtFirstPaint();
    QMainWindow window;
    window.setFixedSize(705, 460);
    auto* const content = new QWidget(&window);
    window.setCentralWidget(content);
    for (auto const& [type, caption, left, top, width, height, isHidden] : kControls) {
        QWidget* const control = Stock(type, QString::fromUtf8(caption), content);
        control->setGeometry(left, top, width, height);
        control->setVisible(!isHidden);
    }
    AddMenu(*window.menuBar());
    window.show();
    return QApplication::exec();
}

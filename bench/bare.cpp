#include "bench/measure.h"

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

// What the tables of form and menu call them.
using TextField = QLineEdit;
using Label = QLabel;
using Listbox = QTableView;
using CheckBox = QCheckBox;
using GroupBox = QGroupBox;
using PushButton = QPushButton;
using BevelButton = QPushButton;

template <typename Control>
void Add(QWidget* form, char const* caption, QRect place, std::string_view style)
{
    auto* const control = new Control(form);
    if constexpr (std::is_same_v<Control, QLineEdit>) {
        control->setText(QStringLiteral("100"));
    } else if constexpr (std::is_same_v<Control, QGroupBox>) {
        control->setTitle(QString::fromUtf8(caption));
    } else if constexpr (!std::is_same_v<Control, QTableView>) {
        control->setText(QString::fromUtf8(caption));
    }
    control->setGeometry(place);
    control->setVisible(!style.starts_with("hidden"));
}

void AddItem(QMenuBar& bar, std::string_view under, char const* text)
{
    static QMenu* menu = nullptr;
    if (QString const caption = QString::fromUtf8(text); !caption.isEmpty() && under.empty()) {
        menu = bar.addMenu(caption);
    } else if (!caption.isEmpty() && menu != nullptr) {
        menu->addAction(caption);
    }
}

} // namespace

int main(int count, char** arguments)
{
    QApplication const application(count, arguments);
    EndAtFirstPaint();
    QMainWindow window;
    window.setFixedSize(705, 460);
    auto* const form = new QWidget(&window);
    window.setCentralWidget(form);
#define CONTROL(tab, type, name, caption, left, top, width, height, style)                                   \
    Add<type>(form, caption, QRect(left, top, width, height), #style);
#include "frame/mainscreen.def"
#define ITEM(under, name, type, text, shortcut) AddItem(*window.menuBar(), under, text);
#include "frame/menu.def"
    window.show();
    return QApplication::exec();
}

#include "frame/author.h"
#include "presenter/presenter.h"
#include "tests/harness.h"

#include <QFocusFrame>
#include <QScreen>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>

namespace {

/// The desktop's colours.
struct Theme {
    char const* name;
    QColor window, base, text;
} const kThemes[] = {
    {"light", {239, 239, 239}, Qt::white, Qt::black},
    {"dark", {49, 54, 59}, {35, 38, 41}, {239, 240, 241}},
    {"high contrast", Qt::black, Qt::black, Qt::yellow},
};

double Luminance(QColor const& color)
{
    auto const linear = [](int part) {
        double const value = part / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
}

/// As the accessibility guidelines for the web define it, from 1 to 21.
double Contrast(QColor const& one, QColor const& other)
{
    auto const [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The pixels in which two pictures differ by this contrast at least; by the lowest one, in any way.
QPolygon Difference(QImage const& one, QImage const& other, double contrast = 1)
{
    QPolygon found;
    for (int i = 0; i < one.width() * one.height(); ++i) {
        QPoint const place(i % one.width(), i / one.width());
        if (one.pixel(place) != other.pixel(place) && // which is quick to see
            Contrast(one.pixelColor(place), other.pixelColor(place)) >= contrast) {
            found += place;
        }
    }
    return found;
}

/// A control and a little of what is around it, as the window draws them.
QImage PictureOf(QWidget& control)
{
    constexpr int kAround = 4; // pixels
    QRect const place(control.mapTo(control.window(), QPoint()), control.size());
    return control.window()->grab(place.adjusted(-kAround, -kAround, kAround, kAround)).toImage();
}

/// What the screen shows of a control, which does not draw itself anew for it.
QImage ScreenOf(QWidget const& control)
{
    QCoreApplication::processEvents();
    QRect const place(control.mapTo(control.window(), QPoint()), control.size());
    return control.screen()->grabWindow(control.window()->winId()).toImage().copy(place);
}

/// Whether a control's text, if it has one, can be seen.
bool IsLegible(QWidget& control)
{
    char const* const property = control.inherits("QGroupBox") ? "title" : "text";
    QString const own = control.property(property).toString();
    QString const text = control.inherits("QLineEdit") ? u"88"_s : own;
    QSignalBlocker const unnoticed(control); // a field would restore its text
    control.setProperty(property, text);
    QImage const with = PictureOf(control);
    control.setProperty(property, u" "_s);
    bool const isLegible = text.isEmpty() || !Difference(with, PictureOf(control), 4.5).isEmpty();
    control.setProperty(property, own);
    QPalette const& colors = control.palette(); // of rows and selected texts
    return isLegible && Contrast(colors.color(QPalette::Text), colors.color(QPalette::Base)) >= 4.5 &&
           Contrast(colors.color(QPalette::HighlightedText), colors.color(QPalette::Highlight)) >= 4.5 &&
           Contrast(colors.color(QPalette::ToolTipText), colors.color(QPalette::ToolTipBase)) >= 4.5;
}

/// Whether the focus can be seen, as two sides of a rectangle: a cursor or a selected digit is not enough.
bool ShowsFocus(QWidget& control)
{
    control.setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    QImage const focused = PictureOf(control);
    control.clearFocus();
    control.window()->findChild<QFocusFrame*>()->setWidget(nullptr);
    return Difference(focused, PictureOf(control), 3).size() >= control.width() + control.height();
}

/// Checks what a window with this content shows.
void CheckControls(QWidget const& content, QString const& style)
{
    bool const hasOwnColors = content.window()->objectName() != "Author"_L1; // that has the desktop's
    for (QWidget* const control : content.findChildren<QWidget*>()) {
        QString const name = style + u' ' + control->objectName();
        bool const isShown = control->isVisible() && control->isEnabled();
        bool const isStop = isShown && (control->focusPolicy() & Qt::TabFocus) != 0;
        QVERIFY2(!isShown || !hasOwnColors || IsLegible(*control), qPrintable(name));
        QVERIFY2(!isStop || ShowsFocus(*control), qPrintable(name));
    }
}

void UseStyle(QString const& style, Theme const& theme)
{
    QPalette palette(theme.window, theme.window);
    palette.setColor(QPalette::Base, theme.base);
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, theme.text);
    }
    palette.setColor(QPalette::ToolTipBase, theme.base);
    palette.setColor(QPalette::ToolTipText, theme.text);
    QApplication::setStyle(style);
    QApplication::setPalette(palette);
}

} // namespace

/// What can be seen on every desktop: with each style that is installed, under light and dark colours and high
/// contrast.
class Looks final : public QObject {
    Q_OBJECT

private slots:
    void listsDrawCellsAndSelectedRowsWhereTheyBelong()
    {
        TestSession const session;
        session.play("total=30; missed=3 Return; missed=6 Return; missed=9 Return");
        auto* const list = session.widget<QTableView>("ListBox1");
        auto const changedBy = [list](auto const& act) {
            QImage const before = ScreenOf(*list->viewport());
            act();
            return Difference(before, ScreenOf(*list->viewport())).boundingRect();
        };
        // The columns are 20 and 65 pixels wide, the rows 16 high.
        QRect const number = changedBy([&] { session.form().ListBox1().Cell(1, 1, ""); });
        QVERIFY(QRect(20, 16, 65, 16).contains(number) && number.right() > 75);
        QRect const percent = changedBy([&] { session.form().ListBox1().Cell(2, 2, ""); });
        QVERIFY(QRect(85, 32, 20, 16).contains(percent) && percent.left() < 90);
        QRect const selected = changedBy([&] { session.play("focus ListBox1; key Down; key Down"); });
        QCOMPARE(selected, QRect(0, 16, list->viewport()->width(), 16));
        QCOMPARE(ScreenOf(*list->viewport()).pixelColor(50, 17), list->palette().color(QPalette::Highlight));
        QRect const added = changedBy([&] { session.play("missed=12 Return"); });
        QVERIFY(QRect(0, 48, 123, 16).contains(added));
        QCOMPARE(changedBy([&] { session.play("EditUndo"); }), added);
        // A number too wide for its column is not cut, in a selected row (the second one) neither.
        for (int const row : {0, 1}) {
            for (int const column : {0, 1, 2}) {
                session.form().ListBox1().Cell(row, column, "");
            }
            QRect const inWideColumn = changedBy([&] { session.form().ListBox1().Cell(row, 2, "166"); });
            QRect const inItsColumn = changedBy([&] {
                session.form().ListBox1().Cell(row, 0, "166");
                static_cast<void>(ScreenOf(*list->viewport()));
                session.form().ListBox1().Cell(row, 1, ""); // this cell alone is painted anew
            });
            QCOMPARE(inItsColumn.size(), inWideColumn.size());
        }
    }

    void captionsOfTheDesktopsSizeFitUpToTwentyPoints()
    {
        QFont const usual = QApplication::font();
        for (int const points : {9, 12, 16, 20}) {
            QApplication::setFont(QFont(usual.family(), points));
            TestSession const session;
            ::Author();
            QWidget const* const button = session.widget("PushButton1", "Author");
            QVERIFY(button->fontMetrics().horizontalAdvance("Check for Updates") < button->width() - 8);
            QCOMPARE(button->fontInfo().pointSize() == points, points <= 16); // larger is too wide at 70 %
            QWidget const* const box = session.widget("GroupBox2");
            QVERIFY(box->fontMetrics().height() <= 21);
            QCOMPARE(box->fontInfo().pointSize() == points, points <= 12);
        }
        QApplication::setFont(usual);
    }

    void textIsLegibleAndFocusIsVisible_data() { AddRows(kThemes); }
    void textIsLegibleAndFocusIsVisible()
    {
        QFETCH(Theme const*, row);
        for (QString const& style : QStyleFactory::keys()) {
            UseStyle(style, *row);
            TestSession const session;
            session.play("total=40; missed=4 Return; missed=8 Return");
            for (char const* const name : {"mainscreen", "Window1", "Author"}) {
                if (name == "Window1"_L1) {
                    ::Window1(); // not earlier, since Windows may bring a new window to the front late
                } else if (name == "Author"_L1) {
                    ::Author();
                }
                session.activate(name);
                CheckControls(*session.widget("StaticText1", name)->parentWidget(), style);
            }
        }
    }
};

GRADELOOM_TEST(Looks)
#include "test_looks.moc"

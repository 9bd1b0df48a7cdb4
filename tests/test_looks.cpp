#include "tests/harness.h"

#include <QFocusFrame>
#include <QScrollArea>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>

namespace {

constexpr char const* kWindows[] = {"mainscreen", "Window1", "Author"};

/// The desktop's colours: of the window, of fields, of texts.
struct Theme {
    char const* name;
    QColor window, base, text;
} const kThemes[] = {
    {"light",         {239, 239, 239}, Qt::white,    Qt::black      },
    {"dark",          {49, 54, 59},    {35, 38, 41}, {239, 240, 241}},
    {"high contrast", Qt::black,       Qt::black,    Qt::yellow     },
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
    auto const [less, more] = std::minmax({Luminance(one), Luminance(other)});
    return (more + 0.05) / (less + 0.05);
}

/// The contrasts between the pixels of two pictures.
std::vector<double> Contrasts(QImage const& one, QImage const& other)
{
    std::vector<double> found;
    for (int i = 0; i < one.width() * one.height(); ++i) {
        QPoint const place(i % one.width(), i / one.width());
        found.push_back(Contrast(one.pixelColor(place), other.pixelColor(place)));
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

/// The controls that Tab reaches, in no order.
QList<QWidget*> TabStops(QWidget const& window)
{
    QList<QWidget*> stops;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() && widget->isEnabled()) {
            stops += widget;
        }
    }
    return stops;
}

/// The greatest contrast between a control with its text and without.
double TextContrast(QWidget& control, char const* property, QString const& text)
{
    QSignalBlocker const unnoticed(control); // a field would put its text back
    control.setProperty(property, text);
    QImage const with = PictureOf(control);
    control.setProperty(property, u" "_s);
    std::vector<double> const contrasts = Contrasts(with, PictureOf(control));
    control.setProperty(property, text);
    return std::ranges::max(contrasts);
}

void UseStyle(QString const& style, Theme const& theme)
{
    QPalette palette(theme.window, theme.window);
    palette.setColor(QPalette::Base, theme.base);
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, theme.text);
    }
    QApplication::setStyle(style);
    QApplication::setPalette(palette);
}

} // namespace

/// What can be seen on every desktop: with each style that is installed, under light and dark colours and high
/// contrast.
class Looks final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<Theme const*>("theme");
        for (QString const& style : QStyleFactory::keys()) {
            for (Theme const& theme : kThemes) {
                QTest::newRow(qPrintable(style + u", "_s + QLatin1String(theme.name))) << style << &theme;
            }
        }
    }
    void init()
    {
        QFETCH_GLOBAL(QString, style);
        QFETCH_GLOBAL(Theme const*, theme);
        UseStyle(style, *theme);
    }
    void cleanupTestCase() { UseStyle(u"Fusion"_s, kThemes[0]); }

    void everyTextIsLegible()
    {
        TestSession const session;
        session.chooseCommand("filepresent");
        session.activate();
        session.enterScores("40", {"4", "8"});
        for (char const* const name : {"mainscreen", "Window1"}) {
            for (QWidget* const control : session.window(name)->findChildren<QWidget*>()) {
                if (!control->isVisible() || !control->isEnabled()) {
                    continue;
                }
                bool const isField = control->inherits("QLineEdit");
                char const* const property = control->inherits("QGroupBox") ? "title" : "text";
                QString const text = isField ? u"88"_s : control->property(property).toString();
                double const contrast = text.isEmpty() ? 21 : TextContrast(*control, property, text);
                QVERIFY2(contrast >= 4.5, qPrintable(u"%1: %2"_s.arg(control->objectName()).arg(contrast)));
                QPalette const& colors = control->palette();
                auto const isLegible = [&](QPalette::ColorRole one, QPalette::ColorRole other) {
                    return Contrast(colors.color(one), colors.color(other)) >= 4.5;
                };
                QVERIFY(!(isField || control->inherits("QTableView")) || // rows and selected texts
                        (isLegible(QPalette::Text, QPalette::Base) &&
                         isLegible(QPalette::HighlightedText, QPalette::Highlight)));
            }
        }
    }

    void everyStopShowsItsFocus()
    {
        TestSession const session;
        session.chooseCommand("filepresent");
        session.activate();
        session.chooseCommand("About");
        QList<int> counts;
        for (char const* const name : kWindows) {
            session.activate(name);
            QList<QWidget*> const stops = TabStops(*session.window(name));
            counts += static_cast<int>(stops.size());
            QList<QImage> focused;
            for (QWidget* const stop : stops) {
                stop->setFocus(Qt::TabFocusReason);
                QCoreApplication::processEvents();
                focused += PictureOf(*stop);
            }
            QApplication::focusWidget()->clearFocus();
            session.window(name)->findChild<QFocusFrame*>()->setWidget(nullptr);
            for (qsizetype i = 0; i < stops.size(); ++i) {
                std::vector<double> const contrasts = Contrasts(focused[i], PictureOf(*stops[i]));
                // Two sides of a rectangle at the least; a cursor or a selected digit alone is less.
                int const wanted = stops[i]->width() + stops[i]->height();
                auto const clear =
                    std::ranges::count_if(contrasts, [](double contrast) { return contrast >= 3; });
                QVERIFY2(clear >= wanted, qPrintable(stops[i]->objectName()));
            }
        }
        QCOMPARE(counts, QList<int>({43, 5, 1}));
    }
};

GRADELOOM_TEST(Looks)
#include "test_looks.moc"

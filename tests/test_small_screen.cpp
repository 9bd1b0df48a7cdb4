#include "tests/harness.h"

#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryFile>

namespace {

// As wide as the main window with its frame, and less high.
constexpr char const* kScreen = R"({"screens": [{"name": "small", "x": 0, "y": 0, "width": 721, "height": 400,
                                "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

bool IsInSight(QWidget const& control, QRect const& part)
{
    return control.visibleRegion().boundingRect().contains(part);
}

} // namespace

/// The program on a screen that its windows do not fit on.
class SmallScreen final : public QObject {
    Q_OBJECT

private slots:
    void windowsFitTheScreenAndPageKeysScrollThem()
    {
        TestSession const session;
        ::Window1();
        ::Author();
        auto const* const area = session.widget<QScrollArea>(QString());
        int const height = 400 - 48 - session.window()->menuBar()->sizeHint().height();
        QCOMPARE(area->size(), QSize(721 - 16, height));
        int const bar = area->verticalScrollBar()->width();
        QCOMPARE(area->viewport()->size(), QSize(705 - bar, height - area->horizontalScrollBar()->height()));
        QCOMPARE(area->palette().color(QPalette::Window), area->widget()->palette().color(QPalette::Window));
        QCOMPARE(session.widget<QScrollArea>(QString(), "Window1")->size(), QSize(631 + bar, height));
        QVERIFY(session.window("Author")->findChild<QScrollArea*>() == nullptr);
        session.activate();
        session.play("focus total");
        for (auto const& [key, scrolls] : {std::pair("Down", false), {"PgDown", true}, {"PgUp", false}}) {
            session.play(u"key "_s + key);
            QCOMPARE(area->verticalScrollBar()->value() > 0, scrolls);
        }
    }

    void focusedControlsAreInSight()
    {
        TestSession const session;
        session.play("total=30" + u"; missed=3 Return"_s.repeated(20));
        session.play("focus total; key Tab");
        QWidget const* const first = QApplication::focusWidget();
        do {
            QWidget const* const before = QApplication::focusWidget();
            session.play("key Tab");
            QWidget const* const control = QApplication::focusWidget();
            QVERIFY(control != before && !control->objectName().isEmpty());
            QVERIFY2(qobject_cast<QTableView const*>(control) != nullptr ||
                         IsInSight(*control, control->rect()),
                     qPrintable(control->objectName()));
        } while (QApplication::focusWidget() != first);
        auto const* const list = session.widget<QTableView>("ListBox1");
        for (char const* const key : {"Home", "End", "Home"}) {
            session.play(u"focus ListBox1; key "_s + key);
            QVERIFY2(IsInSight(*list->viewport(), list->visualRect(list->currentIndex())), key);
        }
    }
};

int main(int count, char** arguments)
{
    QTemporaryFile screen;
    if (!screen.open() || screen.write(kScreen) < 0 || !screen.flush()) {
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screen.fileName()));
    SmallScreen tests;
    return RunTests(tests, count, arguments);
}

#include "test_small_screen.moc"

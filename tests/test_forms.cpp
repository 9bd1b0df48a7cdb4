#include "frame/author.h"
#include "presenter/presenter.h"
#include "tests/harness.h"

namespace {

bool isWriting = false; // the forms, instead of comparing them

char const* const kKinds = "QLineEdit QLabel QPushButton QCheckBox QGroupBox QTableView QWidget";
char const* const kProperties = "text title accessibleName toolTip alignment wordWrap default readOnly "
                                "selectionMode flat acceptDrops enabled";

/// The colour behind a window's content or a text; empty where it is the desktop's.
QString ColorOf(QWidget const& widget, QWidget const& content, QPalette::ColorRole role)
{
    return content.autoFillBackground() ? "  " + widget.palette().color(role).name() : QString();
}

QString WindowLine(QWidget const& window, QWidget const& content)
{
    QString line = u"%1  %2x%3"_s.arg(window.windowTitle()).arg(content.width()).arg(content.height());
    line += window.minimumSize() == window.maximumSize() ? "  fixed size" : "  can be resized";
    line += window.windowFlags().testFlag(Qt::WindowCloseButtonHint) ? "  close box" : "";
    line += window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint) ? "  minimize box" : "";
    line += window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint) ? "  maximize box" : "";
    return line + ColorOf(content, content, QPalette::Window);
}

QString ControlLine(QWidget const& control, QWidget const& content)
{
    QRect const place(control.mapTo(&content, QPoint()), control.size());
    QStringList kinds = QString(kKinds).split(u' ');
    kinds.removeIf([&](QString const& kind) { return !control.inherits(qPrintable(kind)); });
    QString line = u"%1  %2  %3,%4 %5x%6"_s.arg(kinds[0], control.objectName()).arg(place.x());
    line = line.arg(place.y()).arg(place.width()).arg(place.height());
    line += control.font().pixelSize() == 12 ? "  size 12" : "";
    line += control.isHidden() ? "  hidden" : "";
    line += control.font().bold() ? "  bold" : "";
    line += (control.focusPolicy() & Qt::TabFocus) != 0 ? "  tab stop" : "";
    line += (control.focusPolicy() & Qt::ClickFocus) != 0 ? "  focus by click" : "";
    for (QString const& property : QString(kProperties).split(u' ')) {
        QVariant const value = control.property(qPrintable(property));
        QString const text =
            value.typeId() == QMetaType::QString ? value.toString() : QString::number(value.toInt());
        bool const isSaid = !text.isEmpty() && text != u'0';
        line += isSaid ? u"  %1 \"%2\""_s.arg(property, text).replace(u'\n', u"\\n"_s) : u""_s;
    }
    return line + ColorOf(control, content, QPalette::Base);
}

/// A line for the window, one for each item that its menus show and one for each control in the order of the keyboard.
QStringList FormOf(QMainWindow& window, QList<QAction*> const& items)
{
    QWidget const& content = *window.findChild<QWidget*>("StaticText1")->parentWidget();
    QStringList lines = {WindowLine(window, content)};
    for (QAction const* const item : items) {
        QString const shown = item->isSeparator() ? u"separator"_s : item->text();
        QString const line = "menu  " + shown + "  " + item->shortcut().toString(QKeySequence::PortableText) +
                             (item->autoRepeat() ? "  repeats" : "");
        lines += item->isVisible() ? QStringList(line.trimmed()) : QStringList();
    }
    for (QWidget* it = window.nextInFocusChain(); it != &window; it = it->nextInFocusChain()) {
        if (content.isAncestorOf(it) && !it->objectName().isEmpty() && !it->objectName().startsWith(u"qt_")) {
            lines += ControlLine(*it, content);
        }
    }
    return lines;
}

/// The lines that are missing and those that are new, or the first one that is in another place.
QString Difference(QStringList const& expected, QStringList const& found)
{
    QString text;
    for (QString const& line : expected + found) {
        bool const isNew = !expected.contains(line);
        text += isNew || !found.contains(line) ? u"\n%1 %2"_s.arg(isNew ? u'+' : u'-').arg(line) : QString();
    }
    auto const moved = std::ranges::mismatch(found, expected).in1;
    return text.isEmpty() && moved != found.end() ? "\nmoved: " + *moved : text;
}

} // namespace

/// The three windows as they are built, against tests/forms.
class Forms final : public QObject {
    Q_OBJECT

private slots:
    void windowsMatchTheirForms()
    {
        TestSession const session;
        session.play("PushButton3; filepresent");
        QCOMPARE(session.texts(kScaleFieldNames), session.startScale); // so the form is that of the start
        QVERIFY(session.form().UntitledMenu2().Visible()); // has no caption, and keeps its properties
        ::Author();
        for (char const* const name : {"mainscreen", "Window1", "Author"}) {
            QString const path = QStringLiteral(FORMS_FOLDER "/%1.txt").arg(QLatin1String(name));
            session.activate(name);
            QStringList const found = FormOf(*session.window(name), session.menuItems());
            if (isWriting) {
                WriteFile(path, found.join(u'\n').toUtf8() + '\n');
            }
            QFile file(path);
            QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(path));
            QString const difference =
                Difference(QString::fromUtf8(file.readAll()).trimmed().split(u'\n'), found);
            QVERIFY2(difference.isEmpty(), qPrintable("\"test_forms write\" takes this over:" + difference));
        }
    }
};

/// test_forms write: takes the forms as they are now over into tests/forms.
int main(int count, char** arguments)
{
    bool const mayWrite = !qEnvironmentVariableIsSet("CI"); // a run of checks takes nothing over, and fails
    isWriting = mayWrite && count == 2 && arguments[1] == std::string_view("write");
    Forms tests;
    return RunTests(tests, isWriting ? 1 : count, arguments);
}

#include "test_forms.moc"

#include "tests/invariants.h"

#include "frame/conversions.h"

#include <QDir>

#include <cmath>

namespace {

QStringList const kScale = QString::fromLatin1(kScaleFieldNames).split(u' ');
QStringList const kLetters = u"A+ A A- B+ B B- C+ C C- D+ D D-"_s.split(u' ');

void Require(bool holds, QString const& sentence)
{
    if (!holds) {
        QTest::qFail(qPrintable(u"not so: "_s + sentence), __FILE__, __LINE__);
    }
}

double Bound(State const& state, qsizetype place)
{
    return Val(state.fields[kScale[place]].toStdString());
}

double Number(QString const& text)
{
    return CDbl(text.toStdString());
}

/// Whether two numbers are the same in the seven digits that a field shows.
bool IsNear(double one, double other)
{
    return std::fabs(one - other) <= 1e-6 * std::max({1.0, std::fabs(one), std::fabs(other)});
}

/// The letter of the first band that holds the percentage; in a gap the letter of the entry before.
QString RightLetter(State const& now, QString const& before)
{
    double const percentage = std::round(Number(now.fields[u"percentage"_s]));
    for (qsizetype band = 0; band < kLetters.size(); ++band) {
        if (percentage >= Bound(now, 2 * band + 1) && (band == 0 || percentage <= Bound(now, 2 * band))) {
            return kLetters[band];
        }
    }
    return percentage < Bound(now, kScale.size() - 1) ? u"F"_s : before;
}

/// Whether a file that was just written holds the scale, the percentages or a report, to the last byte.
bool IsWhole(QByteArray const& content, State const& state)
{
    QByteArray scale;
    QByteArray percentages;
    for (QString const& name : kScale) {
        scale += state.fields[name].toUtf8() + '\n';
    }
    for (QString const& row : state.lists.first()) {
        percentages += row.section(u',', 1, 1).toUtf8() + '\n';
    }
    bool const isReport = content.startsWith("%PDF-") && content.trimmed().endsWith("%%EOF");
    return isReport || content == scale || content == percentages;
}

} // namespace

State State::now(TestSession const& session, QStringList const& folders)
{
    State state;
    for (QString const& folder : folders) {
        for (QFileInfo const& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
            state.files[file.filePath()] = ContentOf(file.filePath());
        }
    }
    for (QLineEdit const* const field : session.window()->findChildren<QLineEdit*>()) {
        state.fields[field->objectName()] = field->text();
    }
    for (QString const& list : QString(kHistoryLists).split(u' ')) {
        // An entry without a letter is a row without a text.
        bool const isEmpty = session.widget(list)->findChild<QAbstractTableModel*>()->rowCount() == 0;
        state.lists += isEmpty ? QStringList() : session.text(list).split(u';');
    }
    return state;
}

void CheckState(State const& now)
{
    qsizetype const entries = now.entries();
    QStringList last;
    for (QStringList const& list : now.lists) {
        Require(list.size() == entries, u"the five lists are in step"_s);
        last += list.isEmpty() ? QString() : list.last();
    }
    for (qsizetype row = 0; row < entries; ++row) {
        Require(now.lists[0][row].startsWith(QString::number(row + 1) + u','), u"entries are counted up"_s);
    }
    auto const field = [&](char const* name) { return now.fields[QLatin1String(name)]; };
    Require(Number(field("numstudents")) == static_cast<double>(entries), u"the students are the rows"_s);
    Require(Number(field("average")) == Number(last[4]), u"the sum is the last one"_s);
    Require(Number(field("EditField1")) == Number(last[2]), u"the average is the last one"_s);
    Require(field("lettergrade") == last[3], u"the letter is the last one"_s);
    for (QChar const family : u"ABCDF"_s) {
        auto const count =
            std::ranges::count_if(now.lists[3], [family](auto const& row) { return row.startsWith(family); });
        Require(Number(now.fields[family.toLower() + u"grade"_s]) == static_cast<double>(count),
                u"the tally of %1 counts its letters"_s.arg(family));
    }
    Require(entries == 0 || field("total") == field("pointstemp"), u"entries keep the points"_s);
    Require(entries < 2 || field("problem").isEmpty(), u"one Undo does not clear two entries"_s);
}

void CheckStep(State const& before, State const& now)
{
    qsizetype const kept = std::min(before.entries(), now.entries());
    Require(now.entries() == 0 || std::abs(now.entries() - before.entries()) <= 1,
            u"one entry comes or goes, or all go"_s);
    for (qsizetype list = 0; kept > 0 && list < now.lists.size(); ++list) {
        Require(before.lists[list].first(kept) == now.lists[list].first(kept), u"earlier rows stay"_s);
    }
    for (QString const& path : before.files.keys() + now.files.keys()) {
        bool const isSame = now.files.contains(path) && now.files[path] == before.files.value(path);
        Require(isSame || IsWhole(now.files.value(path), now), u"%1 is whole"_s.arg(path));
    }
}

/// A refused press changes the scale and a few fields. An entry has the letter of its band on a sound scale, or, where
/// no band holds it, that of the entry before it.
void CheckGrading(State const& before, State const& now)
{
    Require(now.entries() >= before.entries(), u"Grade removes nothing"_s);
    if (now.entries() == before.entries()) {
        QStringList const mayChange = kScale + u"missed pointstemp problem foundaproblem"_s.split(u' ');
        for (QString const& name : before.fields.keys()) {
            Require(mayChange.contains(name) || before.fields[name] == now.fields[name],
                    u"a refused press leaves %1 alone"_s.arg(name));
        }
        return;
    }
    QString const letter = RightLetter(now, before.fields[u"lettergrade"_s]);
    Require(now.fields[u"lettergrade"_s] == letter, u"the letter is %1"_s.arg(letter));
    Require(Number(now.fields[u"lastmissed"_s]) <= Number(now.fields[u"total"_s]),
            u"no more missed than points"_s);
    Require(Bound(now, 0) == 100.0, u"the scale ends at 100"_s);
    for (qsizetype place = 1; place < kScale.size(); ++place) {
        double const above = Bound(now, place - 1);
        Require(place % 2 == 0 ? IsNear(Bound(now, place), above - 1.0) : Bound(now, place) <= above,
                u"%1 fits the bound above it"_s.arg(kScale[place]));
    }
}

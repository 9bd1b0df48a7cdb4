#pragma once

#include "tests/harness.h"

#include <QMap>

/// What the program holds at one moment.
struct State {
    QMap<QString, QString> fields;
    QList<QStringList> lists; ///< the rows of the five lists of entries
    QMap<QString, QByteArray> files;

    [[nodiscard]] static State now(TestSession const& session, QStringList const& folders);
    [[nodiscard]] qsizetype entries() const { return lists.first().size(); }
};

/// Each fails the test for what does not hold: in a state, from one state to the next, and after a press of Grade.
void CheckState(State const& now);
void CheckStep(State const& before, State const& now);
void CheckGrading(State const& before, State const& now);

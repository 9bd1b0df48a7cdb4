#pragma once

class QAccessibleInterface;
class QObject;
class QString;

/// The factory of what assistive programs see of a field; returns null if the object is no field.
QAccessibleInterface* MakeAccessibleField(QString const& className, QObject* object);

#ifndef HOST_FIELDHINTS_H
#define HOST_FIELDHINTS_H

#include <QRect>
#include <QString>

class QObject;

/// What the numeric keyboard tells of the field that it fills. Applications say it beyond the contract, in
/// ways that another pendant ignores: by the label whose buddy the field is, or by the dynamic properties
/// "caption", "unit" and "step" of the field (of the receiver, for a keyboard without a field).
struct FieldHints
{
    QString caption;      ///< empty: the keyboard has no title
    QString unit;         ///< shown beside the value; may be empty
    double step = 0.0;    ///< 0: any value of the range
    QRect area;           ///< of the field on the screen, kept in sight; empty: unknown
    bool hasNext = false; ///< there is another field to go on with

    /// Of a field, or of a page that asks for one of its table's cells: then `area` is the cell that has the
    /// focus.
    static FieldHints of(const QObject* owner);
};

#endif

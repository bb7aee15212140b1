#ifndef MARKEDTEXT_H
#define MARKEDTEXT_H

#include <QStringList>

/// A text that is marked for translation, and what is filled into its places %1, %2, ... Who shows it knows
/// the translation context and the language; a rule knows neither.
struct MarkedText
{
    const char* text = "";
    QStringList arguments; ///< of %1 first; what stands in them is filled in as it is

    /// `translation` of the text, filled in. A place without an argument stays.
    QString filled(const QString& translation) const;
    QString inEnglish() const { return filled(QString::fromUtf8(text)); }
};

#endif

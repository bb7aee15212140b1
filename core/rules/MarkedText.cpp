#include "MarkedText.h"

// In one pass: an argument that looks like a place is none.
QString MarkedText::filled(const QString& translation) const
{
    QString result;
    result.reserve(translation.size() + 64);
    int copied = 0; // up to there
    for (int i = translation.indexOf(QLatin1Char('%')); i >= 0 && i + 1 < translation.size();
         i = translation.indexOf(QLatin1Char('%'), i + 1)) {
        const int number = translation[i + 1].digitValue();
        if (number < 1 || number > arguments.size())
            continue;
        result.append(translation.constData() + copied, i - copied).append(arguments[number - 1]);
        copied = i + 2;
    }
    return result.append(translation.constData() + copied, translation.size() - copied);
}

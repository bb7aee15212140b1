#include "MarkedText.h"

// In one pass: an argument that looks like a place is none.
QString MarkedText::filled(const QString& translation) const
{
    QString result;
    result.reserve(translation.size() + 64);
    for (int i = 0; i < translation.size(); ++i) {
        const int number = translation[i] == QLatin1Char('%') && i + 1 < translation.size()
                               ? translation[i + 1].digitValue()
                               : -1;
        if (number < 1 || number > arguments.size()) {
            result += translation[i];
            continue;
        }
        result += arguments[number - 1];
        ++i;
    }
    return result;
}

#include "JsonLines.h"

#include <QJsonDocument>

std::vector<QJsonObject> JsonLines::read(const QByteArray& bytes)
{
    std::vector<QJsonObject> objects;
    int begin = 0;
    for (int end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n', begin)) {
        const QJsonObject object = QJsonDocument::fromJson(bytes.mid(begin, end - begin)).object();
        if (!object.isEmpty())
            objects.push_back(object);
        begin = end + 1;
    }
    return objects;
}

QByteArray JsonLines::line(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

#ifndef JSONLINES_H
#define JSONLINES_H

#include <QByteArray>
#include <QJsonObject>

#include <vector>

/// Files with a JSON object a line. What is no such line, as a power failure may leave one at the end, is
/// passed over: the others count.
namespace JsonLines {

std::vector<QJsonObject> read(const QByteArray& bytes);
/// With its line feed; no text in it holds another one.
QByteArray line(const QJsonObject& object);

} // namespace JsonLines

#endif

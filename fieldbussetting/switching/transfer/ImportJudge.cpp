#include "ImportJudge.h"

#include "WholeFile.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

struct ImportJudge
{
    Q_DECLARE_TR_FUNCTIONS(ImportJudge)

public:
    static QString faultOfXml(const QByteArray& content, const QString& root)
    {
        QXmlStreamReader reader(content);
        QString found;
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && found.isNull())
                found = reader.name().toString();
        }
        if (reader.hasError())
            return tr("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
        return found == root ? QString() : tr(R"(begins with "%1" instead of "%2")").arg(found, root);
    }

    static QString faultOfText(const QByteArray& content)
    {
        return content.contains('\0') ? tr("is no text") : QString();
    }

    static QString faultOf(const ImportFile& file)
    {
        QByteArray content;
        if (!WholeFile::read(file.staged(), content))
            return tr("cannot be read");
        if (content.trimmed().isEmpty())
            return tr("is empty");
        return file.root ? faultOfXml(content, QLatin1String(file.root)) : faultOfText(content);
    }
};

} // namespace

QStringList judgeImport(const std::vector<ImportEntry>& entries)
{
    if (std::none_of(entries.begin(), entries.end(),
                     [](const ImportEntry& entry) { return entry.isBrought(); }))
        return {ImportJudge::tr("It holds no file of a bus configuration.")};
    QStringList faults;
    for (const ImportEntry& entry : entries) {
        const QString fault = entry.isBrought() ? ImportJudge::faultOf(*entry.file) : QString();
        if (!fault.isEmpty())
            faults << ImportJudge::tr("%1: %2").arg(entry.file->name, fault);
    }
    return faults;
}

#include "ImportJudge.h"

#include "FileCheck.h"
#include "WholeFile.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct ImportJudge
{
    Q_DECLARE_TR_FUNCTIONS(ImportJudge)

public:
    static QString faultOf(const ImportEntry& entry)
    {
        const KnownFile* known = KnownFiles::named(entry.file->name);
        QByteArray content;
        QByteArray present;
        if (!known || !WholeFile::read(entry.file->staged(), content))
            return tr("cannot be read");
        const bool hasPresent =
            entry.state == ImportEntry::Different && WholeFile::read(entry.file->present(), present);
        const auto fault = FileCheck::faultOf(*known, content, hasPresent ? &present : nullptr);
        return fault ? fault->text.filled(tr(fault->text.text)) : QString();
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
        const QString fault = entry.isSent() ? ImportJudge::faultOf(entry) : QString();
        if (!fault.isEmpty())
            faults << ImportJudge::tr("%1: %2").arg(entry.file->name, fault);
    }
    return faults;
}

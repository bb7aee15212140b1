#include "Rules.h"

namespace Rules {

namespace {

using State = Configuration::State;

FindingCode codeOf(FileCheck::Fault::Kind kind)
{
    switch (kind) {
    case FileCheck::Fault::Empty:
        return FindingCode::FileEmpty;
    case FileCheck::Fault::TooLarge:
    case FileCheck::Fault::TooMany:
        return FindingCode::FileTooLarge;
    case FileCheck::Fault::NotText:
        return FindingCode::FileNotText;
    case FileCheck::Fault::NotXml:
        return FindingCode::FileNotXml;
    case FileCheck::Fault::WrongRoot:
        return FindingCode::FileOtherRoot;
    case FileCheck::Fault::Incomplete:
        break;
    }
    return FindingCode::FileIncomplete;
}

void unknownRoles(const Configuration& configuration, FindingList& found)
{
    for (const ListedRole& role : configuration.listed) {
        if (!RoleTable::named(role.name))
            found.add(FindingCode::UnknownRole, {{}, FileId::RoleList, {'"' + role.name.toUtf8() + '"'}},
                      {role.name},
                      {FindingList::fact(role.name, FileId::RoleList,
                                         role.on ? QStringLiteral("1") : QStringLiteral("0"))});
    }
}

void doubledRoles(const Configuration& configuration, FindingList& found)
{
    for (const QString& name : configuration.file(FileId::RoleList).report.doubledRoles) {
        const QByteArray quoted = '"' + name.toUtf8() + '"';
        found.add(FindingCode::RoleListedTwice, {{}, FileId::RoleList, {quoted, quoted}}, {name},
                  {FindingList::fact(QStringLiteral("Bus"), FileId::RoleList, name)});
    }
}

void unknownElements(const KnownFile& known, const Configuration& configuration, FindingList& found)
{
    for (const QByteArray& name : configuration.file(known.id).report.unknownElements)
        found.add(FindingCode::UnknownElement, {{}, known.id, {'<' + name}},
                  {QLatin1String(known.name), QString::fromUtf8(name)},
                  {FindingList::fact(QStringLiteral("element"), known.id, QString::fromUtf8(name))});
}

} // namespace

void files(const Configuration& configuration, FindingList& found)
{
    for (const KnownFile& known : KnownFiles::all()) {
        const Configuration::File& file = configuration.file(known.id);
        const QLatin1String name(known.name);
        if (file.state == State::Missing && known.isExported())
            found.add(FindingCode::FileMissing, {{}, known.id}, {name},
                      {{QStringLiteral("file"), name, QLatin1String(known.controller)}});
        if (const auto& fault = file.report.fault)
            found.add(codeOf(fault->kind), {{}, known.id}, {name},
                      {{QStringLiteral("file"), name, fault->text.inEnglish()}}, fault->line);
        else
            unknownElements(known, configuration, found);
    }
    unknownRoles(configuration, found);
    doubledRoles(configuration, found);
}

} // namespace Rules

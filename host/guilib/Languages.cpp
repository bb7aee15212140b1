#include "Languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

Languages::Languages()
    : m_programs{QStringLiteral("host")}
{
}

Languages::~Languages() = default;

Languages& Languages::instance()
{
    static Languages languages;
    return languages;
}

const std::vector<Languages::Language>& Languages::all()
{
    // What the source is written in first: it has no file.
    static const std::vector<Language> list = {
        {"en", "English", "EN"},
        {"zh_CN", "\u7B80\u4F53\u4E2D\u6587", "\u4E2D"},
        {"de", "Deutsch", "DE"},
        {"ja", "\u65E5\u672C\u8A9E", "\u65E5"},
    };
    return list;
}

int Languages::indexOf(const QString& code)
{
    const auto found = std::find_if(all().begin(), all().end(), [&code](const Language& language) {
        return code == QLatin1String(language.code);
    });
    return found == all().end() ? -1 : static_cast<int>(found - all().begin());
}

void Languages::use(const QString& code)
{
    const int index = indexOf(code);
    if (index < 0)
        return;
    m_index = index;
    // Also what is no text, the fonts for instance, goes by the locale.
    QLocale::setDefault(QLocale(code));
    for (const auto& translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
    m_translators.clear();
    for (const QString& program : qAsConst(m_programs))
        install(program);
}

void Languages::addProgram(const QString& name)
{
    if (m_programs.contains(name))
        return;
    m_programs.append(name);
    install(name);
}

void Languages::install(const QString& program)
{
    auto translator = std::make_unique<QTranslator>();
    const QString code = QLatin1String(all()[static_cast<std::size_t>(m_index)].code);
    if (m_index == 0 || !translator->load(QStringLiteral(":/translations/%1_%2.qm").arg(program, code)))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}

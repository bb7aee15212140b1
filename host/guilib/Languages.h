#ifndef HOST_LANGUAGES_H
#define HOST_LANGUAGES_H

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The language that the pendant and its applications speak. The texts of a program, the pendant's own and
/// each application's, are a resource ":/translations/PROGRAM_LANGUAGE.qm" of its library.
class Languages : public QObject
{
    Q_OBJECT

public:
    struct Language
    {
        const char* code; ///< "en", "zh_CN": as files are called and options take it
        const char* name; ///< in the language itself
        const char* sign; ///< short, for the status bar
    };

    static Languages& instance();
    ~Languages() override;

    static const std::vector<Language>& all();
    /// Index in `all()`; -1 for a language that there is not.
    static int indexOf(const QString& code);
    /// Of the present one.
    int index() const { return m_index; }

    /// Widgets hear of it by QEvent::LanguageChange. A code that is not known changes nothing.
    void use(const QString& code);
    /// Takes the texts of a program whose library is loaded.
    void addProgram(const QString& name);

private:
    Languages();
    void install(const QString& program);

    QStringList m_programs;
    int m_index = 0;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

#endif

#ifndef TESTS_LIBFIXTURE_H
#define TESTS_LIBFIXTURE_H

#include "CurrentLink.h"
#include "FieldbusSettingLib.h"
#include "MemoryLink.h"
#include "WorkDirectory.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

/// The bytes of a literal, the NULs in it too.
template <int Size>
QByteArray rawBytes(const char (&literal)[Size])
{
    return {literal, Size - 1};
}

/// A working directory of its own, a controller that only remembers, and a library with default records: one
/// a test.
class LibFixture
{
public:
    LibFixture()
        : m_previous(QDir::currentPath())
    {
        FieldbusSettingLib::destroy();
        m_entered = WorkDirectory(m_root.path()).enter();
        setCurrentLink(&link);
    }
    ~LibFixture()
    {
        setCurrentLink(nullptr);
        FieldbusSettingLib::destroy();
        QDir::setCurrent(m_previous);
    }
    LibFixture(const LibFixture&) = delete;
    LibFixture& operator=(const LibFixture&) = delete;

    bool isReady() const { return m_root.isValid() && m_entered; }
    static FieldbusSettingLib& lib() { return *FieldbusSettingLib::getInstance(); }

    /// Path of a file in the library's working directory.
    static QString local(const QString& name)
    {
        return QStringLiteral("../Application/fieldbusSetting/") + name;
    }
    static QStringList localFiles()
    {
        return QDir(local({})).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }

    static bool put(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }
    static QByteArray get(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    /// A written XML file with the time of writing, which must have its form, replaced by "NOW".
    static QByteArray getWithoutDate(const QString& path)
    {
        static const QRegularExpression date(QStringLiteral(
            "(?<=<!-- Date\\(ymd\\)/time\\(hms\\) )\\d{4}(/\\d\\d){2} \\d\\d(:\\d\\d){2}(?= -->)"));
        return QString::fromUtf8(get(path)).replace(date, QStringLiteral("NOW")).toUtf8();
    }

    /// Cuts the file at every byte and reads each part. The length at which it is read although it is cut, or
    /// is not read although only its last line feed is missing; -1: never.
    static int cutAtEveryByte(const QString& path, const std::function<bool()>& isRead)
    {
        const QByteArray whole = get(path);
        for (int length = 0; length <= whole.size(); ++length) {
            if (!put(path, whole.left(length)) || isRead() != (length >= whole.size() - 1))
                return length;
        }
        return -1;
    }

    /// What every written XML file begins with, once its date is replaced.
    static constexpr const char* Prologue =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!-- Date(ymd)/time(hms) NOW -->\n";

    MemoryLink link;

private:
    QString m_previous;
    QTemporaryDir m_root;
    bool m_entered = false;
};

/// A test of the library: a fresh fixture for each test function.
class LibTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<LibFixture>();
        QVERIFY(m_fixture->isReady());
    }
    void cleanup() { m_fixture.reset(); }

protected:
    std::unique_ptr<LibFixture> m_fixture;
};

#endif

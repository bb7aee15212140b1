#include "XmlFile.h"

#include "AsciiText.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <functional>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale and uselocale are POSIX

namespace XmlFile {

namespace {

class ByteWriter : public pugi::xml_writer
{
public:
    explicit ByteWriter(QByteArray& bytes)
        : m_bytes(bytes)
    {
    }
    void write(const void* data, std::size_t size) override
    {
        m_bytes.append(static_cast<const char*>(data), static_cast<int>(size));
    }

private:
    QByteArray& m_bytes;
};

// Control characters cannot stand in an XML file in any form.
bool canStand(QChar c)
{
    return c >= QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n') ||
           c == QLatin1Char('\r');
}

// Texts are written in the pendant's 8-bit encoding. Under a locale whose bytes would break the file, which
// is declared as UTF-8, or that cannot hold the text, it is UTF-8. ASCII is the same in all of them.
QByteArray encoded(QString text)
{
    if (!std::all_of(text.cbegin(), text.cend(), canStand))
        std::replace_if(text.begin(), text.end(), std::not_fn(canStand), QLatin1Char(' '));
    const QByteArray utf8 = text.toUtf8();
    if (utf8.size() == text.size())
        return utf8;
    const QByteArray local = text.toLocal8Bit();
    return local != utf8 && AsciiText::isUtf8(AsciiText::view(local)) && QString::fromLocal8Bit(local) == text
               ? local
               : utf8;
}

} // namespace

bool load(const QByteArray& content, pugi::xml_document& document, unsigned options)
{
    return document.load_buffer(content.constData(), static_cast<std::size_t>(content.size()), options);
}

void appendPrologue(pugi::xml_document& document)
{
    pugi::xml_node declaration = document.prepend_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "utf-8";
    // The controller reads Latin digits, whatever the pendant's language writes.
    const QString time =
        QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    const QByteArray comment = QStringLiteral(" Date(ymd)/time(hms) %1 ").arg(time).toLatin1();
    document.append_child(pugi::node_comment).set_value(comment.constData());
}

void appendText(pugi::xml_node parent, const char* name, const QString& text)
{
    parent.append_child(name).append_child(pugi::node_pcdata).set_value(encoded(text).constData());
}

QString text(pugi::xml_node node)
{
    return QString::fromUtf8(node.text().get());
}

QByteArray bytes(const pugi::xml_document& document, unsigned format)
{
    QByteArray content;
    ByteWriter writer(content);
    document.save(writer, "\t", format, pugi::encoding_utf8);
    return content;
}

PointDecimals::PointDecimals()
{
    static const locale_t point = newlocale(LC_NUMERIC_MASK, "C", static_cast<locale_t>(nullptr));
    m_previous = uselocale(point);
}

PointDecimals::~PointDecimals()
{
    uselocale(static_cast<locale_t>(m_previous));
}

} // namespace XmlFile

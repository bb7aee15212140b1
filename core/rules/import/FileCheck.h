#ifndef FILECHECK_H
#define FILECHECK_H

#include "KnownFiles.h"
#include "MarkedText.h"
#include "ParsedXml.h"

#include <QByteArray>

#include <optional>
#include <vector>

/// Whether bytes are the file that their name says, as its own reader would take it.
namespace FileCheck {

struct Fault
{
    enum Kind {
        Empty,
        TooLarge,
        NotText,   ///< NUL bytes, or an XML file in another encoding than UTF-8
        NotXml,    ///< not well-formed, or with a DOCTYPE: entities of its own are not read
        TooMany,   ///< more elements, roles or text than any controller's file has
        WrongRoot, ///< well-formed, but another file
        Incomplete ///< without the elements or keywords that make it the file of its name
    };
    Kind kind = Empty;
    int line = 0;    ///< 1 the first; 0 where no line is meant
    MarkedText text; ///< of the translation context "ImportJudge"
};

constexpr int MostElements = 250000;
constexpr int MostRoles = 1000;
/// Of one attribute or text, in bytes.
constexpr int MostText = 1024 * 1024;

/// What is wrong with `content`, in linear time. `present` is the controller's own file of that name, if it
/// has one: it is the measure of the root element and of the keywords, so that what once came from this
/// controller is no fault, whatever it is. Without it only a file that the pendant reads itself has to have
/// its root.
std::optional<Fault> faultOf(const KnownFile& file, const QByteArray& content,
                             const QByteArray* present = nullptr);

/// What a file holds besides, found in the same pass.
struct Report
{
    std::optional<Fault> fault;
    std::vector<QByteArray> unknownElements; ///< names that no reader here knows, the first few
    QStringList doubledRoles;                ///< of fieldbus.xml, each once
};
/// As `faultOf`, without a controller's file, and without asking the file's own reader. An XML file is
/// parsed into `xml`, for that reader.
Report examine(const KnownFile& file, const QByteArray& content, ParsedXml& xml);
Report examine(const KnownFile& file, const QByteArray& content);

/// Of a file that its reader refuses for another reason.
Fault refusedByReader(FileId file);

/// The line of a byte, 1 the first.
int lineAt(const QByteArray& content, qint64 offset);

} // namespace FileCheck

#endif

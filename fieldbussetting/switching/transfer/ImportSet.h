#ifndef IMPORTSET_H
#define IMPORTSET_H

#include "KnownFiles.h"
#include "TransferWatch.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// Of a file that is imported. The service that reads them refuses larger ones as well.
constexpr qint64 LargestImportFile = KnownFiles::MostBytes;

/// A file that an import brings to the controller.
struct ImportFile
{
    QString name;            ///< path below the export folder: "fixed/dns_fixed.cfg"
    QString controller;      ///< path on the controller
    const char* root;        ///< root element of an XML file; null for a text file
    bool optional = false;   ///< not of the transfer set: imported when the folder carries it
    bool listsRoles = false; ///< fieldbus.xml
    QString staged() const;  ///< its copy in the import directory
    QString present() const; ///< the controller's present file, as it was fetched for the preview
    QString kept() const;    ///< the controller's former file, kept to be put back
};

/// The transfer set in its order, then the bus switch file, which folders of other origin carry.
const std::vector<ImportFile>& importSet();

/// Directories of an import, beside the staging directory of the export. What is present becomes what is kept
/// when sending begins: until then the files that an earlier import has kept stay.
const QString& importDirectory();
const QString& presentDirectory();
const QString& keptDirectory();

/// Clears one of these directories and makes the folders of the import set in it.
bool prepareImportDirectory(const QString& directory);

/// A file of the set as an import finds it.
struct ImportEntry
{
    enum State {
        Missing,   ///< the folder does not bring it: the controller's stays as it is
        Same,      ///< it is on the controller already
        Different, ///< it will replace the controller's
        New        ///< the controller has none
    };
    enum Reason { NotThere, IsLink, TooLarge }; ///< why it is missing

    const ImportFile* file = nullptr;
    State state = Missing;
    Reason reason = NotThere;
    QByteArray sentHash; ///< SHA-1 of what is to be sent, or was, in hex

    bool isBrought() const { return state != Missing; }
    bool isSent() const { return state == Different || state == New; }
};

/// Copies the files of the set from an export folder into the import directory. Only what the set names is
/// touched; a link, also one on the way to a file, and a file that no controller file can be is left out.
/// What was copied is `Different` until it is compared.
TransferResult copyFromDrive(const QString& drive, const QString& folder, TransferWatch& watch,
                             std::vector<ImportEntry>& entries);

#endif

#ifndef HOST_USBDRIVE_H
#define HOST_USBDRIVE_H

#include <QObject>
#include <QString>

/// A folder that stands for the USB drive in the pendant's socket, with the faults that a drive can have.
class UsbDrive : public QObject
{
    Q_OBJECT

public:
    static UsbDrive& instance();

    /// Plugs in the drive whose content is the folder `path`, in place of another one.
    void insert(const QString& path);
    /// The folder stays; it is only out of reach.
    void pullOut();
    bool isInserted() const { return m_inserted; }
    /// Absolute folder of the drive that is inserted, or was last.
    QString path() const { return m_path; }
    /// Whether `path` is the inserted drive and its folder is there.
    bool isReachable(const QString& path) const;

    /// Whether a path lies on the drive, inserted or not.
    bool holds(const QString& path) const;
    /// Whether a file may be read from or written to `path`, which may lie elsewhere.
    bool mayRead(const QString& path) const;
    bool mayWrite(const QString& path) const;
    /// Counts a file that was written to the drive.
    void countCopy();

    /// Lets `copies` more files be written; every later one fails. -1 ends the fault.
    void failAfterCopies(int copies) { m_copiesLeft = copies; }
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }
    void setFull(bool full) { m_full = full; }

signals:
    /// Inserted or pulled out.
    void changed();

private:
    UsbDrive() = default;

    QString m_path;
    bool m_inserted = false;
    int m_copiesLeft = -1;
    bool m_readOnly = false;
    bool m_full = false;
};

#endif

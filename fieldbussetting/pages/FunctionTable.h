#ifndef FUNCTIONTABLE_H
#define FUNCTIONTABLE_H

#include "DeviceTable.h"
#include "PageBase.h"

/// The EtherCAT functions of the override file, as the page of a slave or of a master switches them on and
/// off: a table with a check box a function, its reset and its save.
class FunctionTable
{
public:
    /// One of the two sections of the file.
    struct Section
    {
        OverrideRecord FieldbusSettingLib::*record;
        PageBase::PlainOperation read;
        PageBase::FileOperation write;
        PageBase::SaveWhen saveWhen;
    };

    /// The three outlive the table.
    FunctionTable(PageBase* page, QTableWidget* table, const Section& section);

    PageBase::PageFile file() const { return {ConfigFile::Override, PageBase::plain(m_section.read)}; }
    /// Shows the record, with new check boxes.
    void fill();
    /// Drops what was ticked and not saved.
    void reset() { m_devices.showFlags(record()); }
    /// Asks, writes and sends the file, and offers the restart. The page may be gone afterwards.
    void save();
    /// The check box of a row; null when the row has none.
    QCheckBox* box(int row) const { return m_devices.box(row); }

private:
    OverrideRecord& record() const { return PageBase::lib()->*m_section.record; }

    PageBase* m_page;
    const Section& m_section;
    DeviceTable m_devices;
};

#endif

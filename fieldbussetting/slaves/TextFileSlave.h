#ifndef TEXTFILESLAVE_H
#define TEXTFILESLAVE_H

#include "PageBase.h"
#include "PerformanceBox.h"
#include "StatusLight.h"

class QCheckBox;
class QComboBox;
class QLabel;

/// What the pages of the slaves with a driver text file have in common. The settings lie in the driver file;
/// the byte order stands in its free or fixed variant as well, so a save writes and sends two files. The
/// light follows the communication state, the box the performance word.
class TextFileSlave
{
public:
    using VariantOperation = bool (FieldbusSettingLib::*)(QString localPath, QString ctrlPath);

    struct Role
    {
        int bus; ///< bit of the role in the communication state and in the performance word
        ConfigFile driverFile;
        ConfigFile freeVariant;
        ConfigFile fixedVariant;
        PageBase::PlainOperation read;
        PageBase::PlainOperation write;
        VariantOperation writeVariant;
    };

    /// All of them outlive the slave. The box of the byte order gets its items.
    TextFileSlave(PageBase* page, const Role& role, QLabel* light, QCheckBox* performanceBox,
                  QComboBox* endianBox);

    PerformanceBox& performanceBox() { return m_performanceBox; }
    void setFreeConfiguration(bool open) { m_freeConfiguration = open; }
    void refreshStatus();

    PageBase::PageFile file() const { return {m_role.driverFile, PageBase::plain(m_role.read)}; }
    /// Writes and sends the driver file and its variant, then offers the restart that makes them effective.
    /// The page may be gone afterwards.
    void save();

private:
    PageBase* m_page;
    const Role& m_role;
    StatusLight m_light;
    PerformanceBox m_performanceBox;
    bool m_freeConfiguration = false;
};

#endif

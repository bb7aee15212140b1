#ifndef TEXTFILESLAVEPAGE_H
#define TEXTFILESLAVEPAGE_H

#include "LinkLight.h"
#include "PageBase.h"
#include "PerformanceBox.h"

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;

/// What the pages of the slaves with a driver text file share. The settings lie in the driver file; the byte
/// order stands in its free or fixed variant as well, so a save writes and sends two files. The light follows
/// the communication state, the box the performance word.
class TextFileSlavePage : public PageBase
{
    Q_OBJECT

public:
    void setFreeConfiguration(bool open) override { m_freeConfiguration = open; }
    void refreshStatus() override;

protected:
    using VariantOperation = bool (FieldbusSettingLib::*)(QString localPath, QString ctrlPath);

    struct Role
    {
        const char* className;
        int bus; ///< bit of the role in the communication state and in the performance word
        ConfigFile driverFile;
        ConfigFile freeVariant;
        ConfigFile fixedVariant;
        PlainOperation read;
        PlainOperation write;
        VariantOperation writeVariant;
    };

    /// `role` must outlive the page.
    explicit TextFileSlavePage(const Role& role);
    /// To be called when the form is built.
    void bind(QLabel* light, QCheckBox* performanceBox, QComboBox* endianBox);

    void showEvent(QShowEvent* event) override;

    PerformanceBox& performanceBox() { return *m_performanceBox; }
    /// Shows an endian name; the first one for a name that is none.
    static void showEndian(QComboBox* endianBox, const QString& name);

    /// Fetches the driver file and reads it into the record.
    Outcome load();
    /// Writes and sends the driver file and its variant, then offers the restart that makes them effective.
    /// The page may be gone afterwards.
    void saveFiles();

private:
    const Role& m_role;
    std::optional<LinkLight> m_light;
    std::optional<PerformanceBox> m_performanceBox;
    bool m_freeConfiguration = false;
};

#endif

#ifndef PLANTFILES_H
#define PLANTFILES_H

#include "Configuration.h"

#include <QFile>

/// A change of one file of the plant: the first `from` becomes `to`; an empty `from` stands for the whole
/// file, and a null `to` removes it.
struct Edit
{
    FileId file;
    QByteArray from;
    QByteArray to; ///< null: the file is removed
};

/// The factory files, with changes.
class PlantFiles
{
public:
    explicit PlantFiles(const QVector<Edit>& edits = {})
    {
        for (const KnownFile& known : KnownFiles::all()) {
            QFile file(QLatin1String(PLANT_DIRECTORY) + QString::fromLatin1(known.controller).toLower());
            QFile spelt(QLatin1String(PLANT_DIRECTORY) + QLatin1String(known.controller));
            if (spelt.open(QIODevice::ReadOnly))
                at(known.id) = spelt.readAll();
            else if (file.open(QIODevice::ReadOnly))
                at(known.id) = file.readAll();
        }
        for (const Edit& edit : edits)
            take(edit);
    }

    std::optional<QByteArray>& at(FileId file) { return m_files[static_cast<std::size_t>(file)]; }
    bool isEdited() const { return m_isEdited; }

    Configuration configuration() const
    {
        return Configuration::from(
            [this](const KnownFile& known) { return m_files[static_cast<std::size_t>(known.id)]; });
    }

private:
    void take(const Edit& edit)
    {
        auto& content = at(edit.file);
        if (edit.to.isNull()) {
            content.reset();
        } else if (edit.from.isEmpty()) {
            content = edit.to;
        } else {
            const int found = content->indexOf(edit.from);
            m_isEdited = m_isEdited && found >= 0;
            content->replace(qMax(found, 0), edit.from.size(), edit.to);
        }
    }

    std::array<std::optional<QByteArray>, FileCount> m_files;
    bool m_isEdited = true; // every text was found
};

#endif

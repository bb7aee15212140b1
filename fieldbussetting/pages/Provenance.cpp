#include "Provenance.h"

#include "ControllerCopies.h"

#include <algorithm>

namespace {

int versionOf(ConfigFile file)
{
    return ControllerCopies::instance().version(file);
}

} // namespace

void Provenance::begin(const std::vector<ConfigFile>& files)
{
    m_sources.clear();
    for (const ConfigFile file : files)
        m_sources.push_back({file, versionOf(file)});
}

void Provenance::end(bool read, const QDateTime& time)
{
    m_state = read ? State::Read : State::NotRead;
    m_time = time;
}

bool Provenance::isOutdated() const
{
    return m_state != State::Nothing &&
           std::any_of(m_sources.begin(), m_sources.end(),
                       [](const Source& source) { return source.version != versionOf(source.file); });
}

std::vector<ConfigFile> Provenance::files() const
{
    std::vector<ConfigFile> files;
    for (const Source& source : m_sources)
        files.push_back(source.file);
    return files;
}

void Provenance::accept(ConfigFile file)
{
    for (Source& source : m_sources) {
        if (source.file == file)
            source.version = versionOf(file);
    }
}

void Provenance::acceptAll()
{
    for (Source& source : m_sources)
        source.version = versionOf(source.file);
}

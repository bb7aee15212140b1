#ifndef SETTINGREADERS_H
#define SETTINGREADERS_H

#include "Settings.h"

#include <optional>
#include <string_view>

/// How the files are read into groups of settings: a row a file.
namespace Settings {

/// The groups of a file; nothing when the bytes are not what the name says.
using Reader = std::optional<std::vector<Group>> (*)(const QByteArray& bytes);

struct Row
{
    const char* path; ///< the name in KnownFiles
    Reader read;
    /// Places of an XML file that the groups tell, as a regular expression; null for a text file.
    const char* knownPlaces;
    /// Whether the groups tell what this line of a text file says; null for an XML file.
    bool (*knowsLine)(std::string_view line);
};

/// Null for a file that no reader knows.
const Row* rowOf(const QString& path);

// The readers, by what they read.
std::optional<std::vector<Group>> roleList(const QByteArray& bytes);
std::optional<std::vector<Group>> switchFile(const QByteArray& bytes);
std::optional<std::vector<Group>> heartbeat(const QByteArray& bytes);
std::optional<std::vector<Group>> mapping(const QByteArray& bytes);
std::optional<std::vector<Group>> eipSlave(const QByteArray& bytes);
std::optional<std::vector<Group>> eipByteOrder(const QByteArray& bytes);
std::optional<std::vector<Group>> pfbSlave(const QByteArray& bytes);
std::optional<std::vector<Group>> pfbByteOrder(const QByteArray& bytes);
std::optional<std::vector<Group>> overrides(const QByteArray& bytes);
std::optional<std::vector<Group>> scanList(const QByteArray& bytes);
std::optional<std::vector<Group>> deviceNetSlave(const QByteArray& bytes);
std::optional<std::vector<Group>> mtcpMaster(const QByteArray& bytes);
std::optional<std::vector<Group>> eipMaster(const QByteArray& bytes);
std::optional<std::vector<Group>> pfnMaster(const QByteArray& bytes);
std::optional<std::vector<Group>> mesServer(const QByteArray& bytes);
std::optional<std::vector<Group>> finsClient(const QByteArray& bytes);
std::optional<std::vector<Group>> slaveModule(const QByteArray& bytes);
std::optional<std::vector<Group>> netPorts(const QByteArray& bytes);
std::optional<std::vector<Group>> profisafe(const QByteArray& bytes);

/// A text of the settings in the operator's language.
QString translated(const char* text);
/// An empty group of a role, with the role's title.
Group groupOf(RoleId role);
/// "on" or "off".
QString switchText(bool on);
/// `value` with its unit; empty stays empty.
QString withUnit(const QString& value, const char* unit);

} // namespace Settings

#endif

#ifndef TESTS_TEXTS_H
#define TESTS_TEXTS_H

#include <QString>

/// What several pages say in the same words, as the operator reads it.
namespace Texts {
const QString Sure = QStringLiteral("Are you sure to save?");
const QString Saved = QStringLiteral("Save successfully.");
const QString Restart = QStringLiteral("Save successfully, Are you sure to restart robot to make it effect?");
const QString ServoFirst = QStringLiteral("Please turn off the servo first!");
const QString GetFailed = QStringLiteral("Failed to get file.");
const QString ReadFailed = QStringLiteral("Failed to read file.");
const QString WriteFailed = QStringLiteral("Failed to write file.");
const QString SendFailed = QStringLiteral("Failed to send file.");
} // namespace Texts

#endif

#ifndef TESTS_USBPENDANT_H
#define TESTS_USBPENDANT_H

#include "ApplicationSlot.h"
#include "FileLocations.h"
#include "Finger.h"
#include "PendantFixture.h"
#include "UsbDrive.h"
#include "UserSession.h"

#include <QDir>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

/// The set by its names in an export folder, in the order in which it is fetched.
inline const QStringList& exportedFiles()
{
    static const QStringList names = [] {
        QStringList paths;
        for (const TransferFile& file : FileLocations::transferSet())
            paths << file.path;
        return paths;
    }();
    return names;
}

/// Where the controller has a file of an export folder.
inline QString controllerPath(const QString& name)
{
    return (name.startsWith(QLatin1String("fa/")) ? QStringLiteral("/")
                                                  : QStringLiteral("/application/fidbus/")) +
           name;
}

/// A pendant with a USB drive in its socket, opened on the bus switch page. Answers the import's dialogs as a
/// finger does: chooses a row of the folder list, and confirms the preview or leaves it.
class UsbPendant : public PendantFixture
{
public:
    using Bytes = QMap<QString, QByteArray>; ///< by name in an export folder

    UsbPendant()
        : PendantFixture(200.0)
    {
        logged().clear();
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& text) {
            if (qstrcmp(context.category, "fieldbussetting") == 0)
                logged() << text;
        });
        insertDrive();
        // A restart would end the application.
        MsgBoxScript::onShown([this](const MsgBox* shown) {
            const QPointer<const MsgBox> box(shown);
            if (whileShown)
                whileShown(box->text());
            if (box && declined.contains(box->text()))
                box->findChild<QPushButton*>(QStringLiteral("secondButton"))->click();
        });
        QObject::connect(&m_look, &QTimer::timeout, [this] { answerDialog(); });
        m_look.start(2);
    }
    ~UsbPendant()
    {
        qInstallMessageHandler(nullptr);
        UsbDrive::instance().setFull(false);
        UsbDrive::instance().setReadOnly(false);
        UsbDrive::instance().failAfterCopies(-1);
    }

    void insertDrive() const { UsbDrive::instance().insert(usbDirectory()); }

    /// Presses the button, confirms every box, and gives the text of the last one.
    QString run(const QString& button)
    {
        const int before = messages().size();
        MsgBoxScript::answerByDefault(MsgBox::Confirmed);
        if (!press(button)) // returns when all is over
            return QStringLiteral("(not pressed)");
        return messages().size() == before ? QString() : messages().constLast();
    }
    QString runExport() { return run(QStringLiteral("btn_export")); }
    QString runImport() { return run(QStringLiteral("btn_import")); }
    /// Texts of the boxes from number `from` on, without the question about a folder that is no whole export.
    static QStringList told(int from = 0)
    {
        QStringList texts;
        for (const QString& text : messages().mid(from)) {
            if (!text.contains(QLatin1String(" is not a whole export:\n")))
                texts << text;
        }
        return texts;
    }

    /// The export folders on the drive, the oldest first.
    QStringList folders() const
    {
        return QDir(usbDirectory()).entryList({QStringLiteral("fidbus_*")}, QDir::Dirs, QDir::Name);
    }
    void clearDrive() const
    {
        QDir(usbDirectory()).removeRecursively();
        QDir().mkpath(usbDirectory());
    }

    /// The files of the set on the controller; those that are missing are left out.
    Bytes configuration()
    {
        Bytes bytes;
        for (const QString& name : exportedFiles()) {
            QByteArray content;
            if (controller().files().read(controllerPath(name), content))
                bytes[name] = content;
        }
        return bytes;
    }
    /// Changes the file under `path` so that it stays what it is.
    bool vary(const QString& path, const QByteArray& mark)
    {
        const bool isXml = path.endsWith(QLatin1String(".xml")) || path.endsWith(QLatin1String(".cfgx"));
        return controller().files().write(path, controllerFile(path) +
                                                    (isXml ? "<!-- " + mark + " -->\n" : "; " + mark + "\n"));
    }

    /// Calls `act` at step `n` (from 1) of the transfers to come, as the progress bar shows them.
    void atStep(int n, std::function<void()> act)
    {
        auto* bar = find<QProgressBar>(QStringLiteral("progressBar"));
        QObject::disconnect(m_step);
        m_stepsLeft = n;
        m_stepReached = false;
        if (bar)
            m_step =
                QObject::connect(bar, &QProgressBar::valueChanged, [this, act = std::move(act)](int value) {
                    if (value > 0 && --m_stepsLeft == 0) {
                        m_stepReached = true;
                        act();
                    }
                });
    }
    bool stepReached() const { return m_stepReached; }
    QDialog* progressDialog() const { return find<QDialog>(QStringLiteral("ProgressDialog")); }

    static QStringList& logged()
    {
        static QStringList texts;
        return texts;
    }

    static QString restartQuestion()
    {
        return QStringLiteral("Save successfully, Are you sure to restart robot to make it effect?");
    }
    std::function<void(const QString&)> whileShown; ///< with the text of a box
    QStringList declined{restartQuestion()};        ///< questions that are answered with the second button

    // What the next import's dialogs are answered, and what they showed.
    int row = 0; ///< of the folder list; -1 cancels
    bool confirm = true;
    std::function<void()> whilePreview;
    QStringList shownFolders;          ///< "date | folder | files"
    QMap<QString, QString> shownFiles; ///< state by file
    QMap<QString, QString> shownRoles; ///< "now>after" by role
    QString notice;
    bool couldConfirm = false;

private:
    static QString cell(const QTableWidget* table, int tableRow, int column)
    {
        return table->item(tableRow, column)->text();
    }

    void answerDialog()
    {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        const auto press = [dialog](const char* name) {
            Finger::press(dialog->findChild<QWidget*>(QLatin1String(name)));
        };
        if (dialog->objectName() == QLatin1String("ImportFolderDialog")) {
            auto* table = dialog->findChild<QTableWidget*>(QStringLiteral("folderTable"));
            shownFolders.clear();
            for (int i = 0; i < table->rowCount(); ++i)
                shownFolders << cell(table, i, 0) + " | " + cell(table, i, 1) + " | " + cell(table, i, 2);
            if (row >= 0)
                QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                                  table->visualItemRect(table->item(row, 1)).center());
            press(row >= 0 ? "chooseButton" : "cancelButton");
        } else if (dialog->objectName() == QLatin1String("ImportPreviewDialog")) {
            shownFiles.clear();
            shownRoles.clear();
            auto* files = dialog->findChild<QTableWidget*>(QStringLiteral("fileTable"));
            for (int i = 0; i < files->rowCount(); ++i)
                shownFiles[cell(files, i, 0)] = cell(files, i, 1);
            auto* roles = dialog->findChild<QTableWidget*>(QStringLiteral("roleTable"));
            for (int i = 0; i < roles->rowCount(); ++i)
                shownRoles[cell(roles, i, 0)] = cell(roles, i, 1) + ">" + cell(roles, i, 2);
            auto* told = dialog->findChild<QLabel*>(QStringLiteral("label_notice"));
            notice = told->isVisible() ? told->text() : QString();
            couldConfirm = dialog->findChild<QWidget*>(QStringLiteral("importButton"))->isVisible();
            if (whilePreview)
                whilePreview();
            if (dialog == QApplication::activeModalWidget())
                press(confirm && couldConfirm ? "importButton" : "cancelButton");
        }
    }

    QTimer m_look;
    QMetaObject::Connection m_step;
    int m_stepsLeft = 0;
    bool m_stepReached = false;
};

#endif

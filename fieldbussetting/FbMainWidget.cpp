#include "FbMainWidget.h"

#include "BusFileDataManager.h"
#include "ExitPermission.h"
#include "FieldbusModule.h"
#include "FileLocations.h"
#include "FitCaption.h"
#include "Logging.h"
#include "MsgBox.h"
#include "PageBase.h"
#include "ProgressBarWidget.h"
#include "SysSettingApi.h"
#include "UnfinishedImport.h"
#include "ZelFunctions.h"
#include "ui_FbMainWidget.h"

#include <QButtonGroup>
#include <QPointer>
#include <QTimer>

#include <map>
#include <utility>

using PageRegistry::Entry;
using PageRegistry::Shown;

namespace {

constexpr int NotificationsAwaited = 2;

// Of the menu, in pixels: what a button leaves for its caption beside the scroll bar.
constexpr int ButtonHeight = 48;
constexpr int CaptionWidth = 140;

// Progress in per cent at the steps of the start.
constexpr int ProgressBuilt = 30;
constexpr int ProgressBusesKnown = 60;
constexpr int ProgressStartPage = 80;
constexpr int ProgressMappingKnown = 100;

bool shownAtStart(const Entry& entry)
{
    switch (entry.shown) {
    case Shown::Always:
        return true;
    case Shown::WithProfisafe:
        return FieldbusModule::isProfisafePresent();
    case Shown::WhenOn:
    case Shown::Never:
        break;
    }
    return false;
}

} // namespace

FbMainWidget::FbMainWidget()
    : ui(std::make_unique<Ui::FbMainWidget>())
    , m_menuButtons(new QButtonGroup(this))
    , m_progressBar(std::make_unique<ProgressBarWidget>(nullptr))
{
    UnfinishedImport::clearLeftOvers();
    ui->setupUi(this);
    ZelSetUIStyleSheet(this, QLatin1String("fieldbussetting/FbMainWidget"));

    m_progressBar->move(width() / 2 - m_progressBar->width() / 2, height() / 2 - m_progressBar->height() / 2);
    m_progressBar->setRange(0, 100);
    m_progressBar->show();
    m_progressBar->setValue(ProgressBuilt);

    buildMenu();
    connect(m_menuButtons, SIGNAL(buttonClicked(int)), this, SLOT(slotMenuBtnsClicked(int)));
    connect(ui->btn_retry, &QPushButton::clicked, this, &FbMainWidget::retry);

    setIsFieldXml(true);
    setIsFieldbusCfg(true);
    BusFileDataManager::getInstance()->attach(this);
    QTimer::singleShot(1, this, &FbMainWidget::slotGetFileToUi);
    hide();
}

FbMainWidget::~FbMainWidget()
{
    // Pages may be observers themselves; they detach while the service is sure to be in no notification.
    for (PageBase*& page : m_pages)
        delete std::exchange(page, nullptr);
    BusFileDataManager::getInstance()->detach(this);
}

void FbMainWidget::buildMenu()
{
    // In the order of the rows, which is then that of the focus. No grid: that one squeezes the rest for a
    // row that is hidden.
    std::map<int, const Entry*> rows;
    for (const Entry& entry : PageRegistry::entries()) {
        if (entry.button)
            rows.emplace(entry.gridRow, &entry);
    }
    for (const auto& row : rows) {
        const Entry& entry = *row.second;
        auto* button = new QPushButton(ui->menuArea);
        button->setObjectName(QLatin1String(entry.button));
        button->setMinimumHeight(ButtonHeight);
        FitCaption::setText(button, tr(entry.caption), CaptionWidth);
        button->setCheckable(true);
        button->setVisible(shownAtStart(entry));
        ui->menuLayout->addWidget(button);
        m_menuButtons->addButton(button, entry.id);
    }
}

void FbMainWidget::slotGetFileToUi()
{
    const QPointer<FbMainWidget> self(this);
    BusFileDataManager* service = BusFileDataManager::getInstance();
    mouseEventTransParentSlot(true);
    const struct
    {
        ConfigFile file;
        const char* key;
        const char* path;
    } files[] = {{ConfigFile::BusRoles, "fieldbus", FileLocations::FieldbusXml},
                 {ConfigFile::IoMapping, "fieldbusCfg", FileLocations::FieldbusConfigXml}};
    for (const auto& held : files) {
        if (service->isFuncInfoNotified(QLatin1String(held.key))) {
            ServiceFiles::noteHeld(held.file);
            busNotification(0, QLatin1String(held.path), true);
        } else {
            ServiceFiles::request(held.file);
        }
        if (!self)
            return;
    }
    mouseEventTransParentSlot(false);
}

void FbMainWidget::busNotification(int kind, const QString& path, bool success)
{
    if (kind != 0)
        return;
    if (path == QLatin1String(FileLocations::FieldbusXml) && m_busConfigPending) {
        m_busConfigPending = !success;
        if (success) {
            const QPointer<FbMainWidget> self(this);
            showStart();
            if (!self)
                return;
        }
        if (std::exchange(m_busConfigAwaited, false))
            countNotification();
    } else if (path == QLatin1String(FileLocations::FieldbusConfigXml) && m_mappingPending) {
        m_mappingPending = false;
        if (success)
            m_progressBar->setValue(ProgressMappingKnown);
        countNotification();
    }
}

void FbMainWidget::showStart()
{
    showRetryNotice(false);
    m_progressBar->setValue(ProgressBusesKnown);
    for (const BusName& bus : BusFileDataManager::getInstance()->getBusNameList(true, true))
        m_busNames.append(bus.name);
    showButtonsOf(m_busNames);
    const QPointer<FbMainWidget> self(this);
    // What was opened without them stays in sight.
    if (m_chosenPage < 0)
        showPage(PageRegistry::StartPage);
    if (self)
        m_progressBar->setValue(ProgressStartPage);
}

void FbMainWidget::showRetryNotice(bool shown)
{
    ui->retryNotice->setVisible(shown);
    ui->fieldbusSetSWidget->setVisible(!shown);
}

// Over the area that has no page to show as long as the roles are not known.
void FbMainWidget::retry()
{
    const QPointer<FbMainWidget> self(this);
    mouseEventTransParentSlot(true);
    ServiceFiles::read(ConfigFile::BusRoles);
    if (self)
        mouseEventTransParentSlot(false);
}

void FbMainWidget::showButtonsOf(const QStringList& busNames)
{
    for (const Entry& entry : PageRegistry::entries()) {
        if (entry.busName && busNames.contains(QLatin1String(entry.busName)))
            m_menuButtons->button(entry.id)->show();
    }
}

void FbMainWidget::countNotification()
{
    if (++m_notificationCount != NotificationsAwaited)
        return;
    if (m_progressBar->isVisible())
        m_progressBar->close();
    if (isHidden())
        show();
    showRetryNotice(m_busConfigPending && m_chosenPage < 0);
    showUnfinishedImport();
    if (UnfinishedImport::exists())
        QTimer::singleShot(0, this, &FbMainWidget::tellUnfinishedImport);
}

void FbMainWidget::showUnfinishedImport()
{
    if (ui->label_unfinishedImport->isHidden() == UnfinishedImport::exists())
        ui->label_unfinishedImport->setVisible(UnfinishedImport::exists());
}

void FbMainWidget::tellUnfinishedImport()
{
    const QPointer<MsgBox> box(new MsgBox(MsgBox::Warning, ui->label_unfinishedImport->text(), this));
    box->exec(); // the application may be closed meanwhile, and the box with it
    delete box.data();
}

void FbMainWidget::slotMenuBtnsClicked(int id)
{
    if (!m_inputBlock.isOn())
        showPage(id);
}

void FbMainWidget::showPage(int id)
{
    if (id < 0 || id >= PageRegistry::PageCount)
        id = 0;
    const QPointer<FbMainWidget> self(this);
    m_chosenPage = id;
    setProperty("page", id); // for a host that makes the application anew
    PageBase* page = pageOf(id);
    // A page that waits while it is made does not come in front of the one that was chosen meanwhile.
    if (!self || !page || m_chosenPage != id)
        return;
    showRetryNotice(false);
    ui->fieldbusSetSWidget->setCurrentWidget(page);
    // For a page without a button none is pressed, which an exclusive group does not allow.
    QAbstractButton* button = m_menuButtons->button(id);
    m_menuButtons->setExclusive(button != nullptr);
    if (QAbstractButton* marked = button ? button : m_menuButtons->checkedButton())
        marked->setChecked(button != nullptr);
    ZelSwitchWidgetVariablesContext();
}

PageBase* FbMainWidget::pageOf(int id)
{
    PageBase*& page = m_pages[static_cast<std::size_t>(id)];
    if (page)
        return m_pageInPreparation == id ? nullptr : page;

    const Entry& entry = PageRegistry::entries()[static_cast<std::size_t>(id)];
    page = entry.create();
    if (entry.blocksInput)
        connect(page, &PageBase::mouseEventSignal, this, &FbMainWidget::mouseEventTransParentSlot);
    else // these pages leave the menu page as it is for fingers, which are stopped all the same
        connect(page, &PageBase::mouseEventSignal, &m_inputBlock, &InputBlock::count);
    if (QAbstractButton* button = m_menuButtons->button(id))
        connect(page, &PageBase::editedChanged, button, [button, caption = tr(entry.caption)](bool edited) {
            FitCaption::setText(button, edited ? tr("%1 \u25CF").arg(caption) : caption, CaptionWidth);
        });
    if (entry.needsFreeMode)
        page->setFreeConfiguration(BusFileDataManager::getInstance()->isOpenFreeBus());
    ui->fieldbusSetSWidget->addWidget(page);
    // It may fetch its file first: the application may be closed, or the page asked for again, before it is
    // done.
    const QPointer<FbMainWidget> self(this);
    const int outerPage = std::exchange(m_pageInPreparation, id);
    page->prepare();
    if (!self)
        return nullptr;
    m_pageInPreparation = outerPage;
    return page;
}

void FbMainWidget::mouseEventTransParentSlot(bool status)
{
    m_mouseBlockCount += status ? 1 : -1;
    m_inputBlock.count(status);
    setAttribute(Qt::WA_TransparentForMouseEvents, m_mouseBlockCount != 0);
}

void FbMainWidget::on_exitBtn_clicked()
{
    qCDebug(fieldbusLog, "FbMainWidget::on_exitBtn_clicked");
    if (!m_inputBlock.isOn())
        emit closeApp(); // deletes this page
}

void FbMainWidget::idle()
{
    const QPointer<FbMainWidget> self(this);
    for (const int id : PageRegistry::idleOrder()) {
        PageBase* page = m_pages[static_cast<std::size_t>(id)];
        if (page && (page->isVisible() || page->isAtWork()))
            page->refreshStatus();
        if (!self) // a page's idle work may wait, and the application may be closed meanwhile
            return;
    }
    showUnfinishedImport();
    SysSettingApi::getInstance()->sysSettingLibIdle();
    if (ui->exitBtn->isEnabled() != ExitPermission::isGiven()) {
        ui->exitBtn->setEnabled(ExitPermission::isGiven());
        setProperty("leavable", ExitPermission::isGiven());
    }
}

#include "StatusMain.h"

#include "ControllerWatch.h"
#include "RolePage.h"
#include "ZelFunctions.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>

using Contact = ControllerWatch::Contact;

namespace {
constexpr int TabGap = 8;
constexpr int TargetHeight = 48;
} // namespace

StatusMain::StatusMain(const StatusContext& context)
    : m_context(context)
    , m_tabs(new QButtonGroup(this))
    , m_contact(new QLabel(this))
    , m_stack(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("StatusMain"));
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("statusTabs"));
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(TabGap, TabGap, TabGap, TabGap);
    row->setSpacing(TabGap);
    for (std::size_t i = 0; i < PageTable::Count; ++i) {
        const PageTable::Entry& entry = PageTable::entries()[i];
        QPushButton* tab = addButton(row, entry.button, tr(entry.caption));
        tab->setCheckable(true);
        m_tabs->addButton(tab, static_cast<int>(i));
        connect(tab, &QPushButton::clicked, this, [this, i] { showPage(i); });
    }
    row->addStretch(1);
    m_refresh = addButton(row, "refreshBtn", tr("Refresh"));
    connect(m_refresh, &QPushButton::clicked, this, [this] { m_context.watch.refresh(); });
    connect(addButton(row, "exitBtn", tr("Exit")), &QPushButton::clicked, this, &StatusMain::closeApp);

    m_contact->setObjectName(QStringLiteral("label_contact"));
    m_contact->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_contact);
    layout->addWidget(m_stack, 1);
    ZelSetUIStyleSheet(this, QStringLiteral("fieldbusstatus/StatusMain"));

    m_context.watch.refresh();
    showPage(0);
    showContact();
}

StatusMain::~StatusMain() = default;

QPushButton* StatusMain::addButton(QHBoxLayout* row, const char* name, const QString& caption)
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(caption);
    button->setMinimumHeight(TargetHeight);
    row->addWidget(button);
    return button;
}

void StatusMain::adopt(StatusPage* page)
{
    m_stack->addWidget(page);
    connect(page, &StatusPage::subjectWanted, this, &StatusMain::showSubject);
}

void StatusMain::showPage(std::size_t index)
{
    StatusPage*& page = m_pages[index];
    if (!page) {
        page = PageTable::entries()[index].create(m_context);
        adopt(page);
    }
    m_chosen = index;
    setProperty("page", static_cast<int>(index)); // for a host that makes the application anew
    m_tabs->button(static_cast<int>(index))->setChecked(true);
    m_stack->setCurrentWidget(page);
}

void StatusMain::choosePage(int index)
{
    if (index >= 0 && index < static_cast<int>(PageTable::Count))
        showPage(static_cast<std::size_t>(index));
}

void StatusMain::showSubject(int subject)
{
    if (!m_rolePage) {
        m_rolePage = new RolePage(m_context);
        adopt(m_rolePage);
        connect(m_rolePage, &RolePage::backWanted, this, [this] { showPage(m_chosen); });
    }
    m_rolePage->setSubject(static_cast<Subjects::Id>(subject));
    m_stack->setCurrentWidget(m_rolePage);
}

void StatusMain::idle()
{
    showContact();
    if (auto* page = qobject_cast<StatusPage*>(m_stack->currentWidget()))
        page->idle();
}

void StatusMain::showContact()
{
    const ControllerWatch& watch = m_context.watch;
    const Contact contact = watch.contact();
    const int toCome = watch.filesToCome();
    if (m_shownContact.contact == static_cast<int>(contact) && m_shownContact.filesToCome == toCome &&
        m_shownContact.readAt == watch.readAt())
        return;
    m_shownContact = {static_cast<int>(contact), toCome, watch.readAt()};
    QString text;
    if (contact == Contact::Lost)
        text = tr("The controller does not answer: it restarts, or its cable is out. "
                  "What is shown is what was known last.");
    else if (contact == Contact::Waiting)
        text = tr("Waiting for the controller ...");
    else if (toCome > 0)
        text = tr("Reading the controller's files: %n to come", nullptr, toCome);
    else
        text = tr("Read from the controller %1").arg(watch.readAt().toString(QStringLiteral("HH:mm:ss")));
    m_contact->setText(text);
    m_refresh->setEnabled(contact == Contact::There && toCome == 0);
    const bool isWarning = contact != Contact::There;
    if (m_contact->property("warning").toBool() == isWarning)
        return;
    m_contact->setProperty("warning", isWarning);
    m_contact->style()->unpolish(m_contact);
    m_contact->style()->polish(m_contact);
}

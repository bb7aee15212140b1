#include "PageHead.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int SignSize = 22; // pixels
constexpr int Gap = 6;

QLabel* makeLabel(const char* name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

PageHead::PageHead(QLabel* title)
    : QWidget(title->parentWidget())
    , m_dot(makeLabel("label_edited", this))
    , m_sign(makeLabel("label_source_sign", this))
    , m_line(makeLabel("label_source", this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    const std::unique_ptr<QLayoutItem> former(parentWidget()->layout()->replaceWidget(title, this));
    m_dot->setText(QStringLiteral("\u25CF"));
    m_dot->hide();
    m_sign->setFixedSize(SignSize, SignSize);
    m_sign->hide();

    auto* titleRow = new QHBoxLayout;
    titleRow->setSpacing(Gap);
    titleRow->addWidget(title, 1);
    titleRow->addWidget(m_dot);
    auto* sourceRow = new QHBoxLayout;
    sourceRow->setSpacing(Gap);
    sourceRow->addWidget(m_sign);
    sourceRow->addWidget(m_line, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(titleRow);
    rows->addLayout(sourceRow);
}

void PageHead::showProvenance(const Provenance& provenance)
{
    const bool isMissing = provenance.state() == Provenance::State::NotRead;
    QString text;
    if (isMissing)
        text = tr("Not read from the controller: these are not its settings");
    else if (provenance.state() == Provenance::State::Read)
        text = tr("Read from the controller %1").arg(provenance.time().toString(QStringLiteral("HH:mm:ss")));
    m_line->setText(text);
    m_sign->setVisible(isMissing);
    if (m_line->property("warning").toBool() == isMissing)
        return;
    m_line->setProperty("warning", isMissing);
    m_line->style()->unpolish(m_line);
    m_line->style()->polish(m_line);
}

void PageHead::showEdited(bool edited)
{
    m_dot->setVisible(edited);
}

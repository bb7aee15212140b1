#ifndef SUPPORTPAGE_H
#define SUPPORTPAGE_H

#include "StatusPage.h"
#include "SupportBundle.h"

class QLabel;
class QPushButton;

/// The button that writes the support bundle onto the USB drive, and what became of it.
class SupportPage : public StatusPage
{
    Q_OBJECT

public:
    explicit SupportPage(const StatusContext& context);

protected:
    void showState() override {}
    int version() const override { return 0; }

private:
    // The page may be gone afterwards.
    void write();

    QLabel* m_progress;
    QPushButton* m_write;
};

#endif

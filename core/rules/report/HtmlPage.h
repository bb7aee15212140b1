#ifndef HTMLPAGE_H
#define HTMLPAGE_H

#include "IoList.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// A page that needs nothing but itself: no script, no picture, no font from elsewhere. It prints on paper.
class HtmlPage
{
public:
    explicit HtmlPage(const QString& title);

    void heading(const QString& text);
    void paragraph(const QString& text);

    /// Rows of a table, cell by cell; texts are taken as texts, whatever stands in them.
    void beginTable(const QStringList& header);
    void row(const QStringList& cells, const char* style = "");
    void endTable();

    /// One direction of a bus as a ruler: the ranges as long as they are, with the addresses below.
    void ruler(const QString& caption, const std::vector<IoRow>& ranges);

    /// What is there so far, for a page that is not to be held in memory.
    QByteArray takeBytes();
    /// The rest of it.
    QByteArray bytes() const;

private:
    QString m_body;
};

#endif

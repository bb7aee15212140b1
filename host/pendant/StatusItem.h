#ifndef PENDANT_STATUSITEM_H
#define PENDANT_STATUSITEM_H

#include <QWidget>

class QLabel;

/// One piece of the pendant's state in the status bar: what it is, and how it stands, as a shape and a word.
/// The colour, from the style sheet by the property "look", only underlines them.
class StatusItem : public QWidget
{
    Q_OBJECT

public:
    struct Reading
    {
        const char* icon;  ///< name of an image of the host; null for none
        const char* shape; ///< one character, UTF-8
        const char* word;  ///< untranslated
        const char* look;  ///< "calm", "good", "warn" or "bad"
    };

    /// `caption` untranslated, in the context of this class; it outlives the item.
    explicit StatusItem(const char* caption, QWidget* parent = nullptr);

    void show(const Reading& reading);
    using QWidget::show;
    QString text() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    const char* m_caption;
    Reading m_reading{};
    QLabel* m_icon;
    QLabel* m_name;
    QLabel* m_value;
};

#endif

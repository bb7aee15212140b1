#ifndef FORMFIELDS_H
#define FORMFIELDS_H

#include "QTouchLineEdit.h"

#include <QComboBox>

#include <optional>
#include <variant>
#include <vector>

class EditWatch;

/// How what is typed reaches a record that holds texts.
enum class Typed {
    AsItStands,
    Trimmed,
    WholeNumber ///< the integer part of the number; what is none is 0
};

/// What the numeric keyboard of an edit lets through; both ends belong to the range.
struct NumberEntry
{
    int cast; ///< QTouchLineEdit::Cast
    double least;
    double most;
    int decimals = -1;
    const char* unit = ""; ///< shown on the keyboard
};

/// Prepares an edit for what its keyboard lets through.
void prepareEntry(QTouchLineEdit* edit, const NumberEntry& entry);

/// The entry of a range that a table of ranges gives.
template <typename Range>
constexpr NumberEntry numberEntry(int cast, const Range& range, int decimals = -1)
{
    return {cast, range.least, range.most, decimals, range.unit};
}

/// A field of a form and the member of a record that it shows. An edit shows a text or a number; a combo box
/// shows the item of an index, or the one of a text.
template <typename Form, typename Record>
struct FormField
{
    std::variant<QTouchLineEdit * Form::*, QLineEdit * Form::*, QComboBox * Form::*> widget;
    std::variant<QString Record::*, int Record::*> value;
    std::optional<NumberEntry> entry = std::nullopt; ///< of an edit
    Typed typed = Typed::AsItStands;
};

/// The fields of a page and the record that they show: a table of FormField is walked to fill the form and to
/// take over what was entered.
///
/// A value that could not be entered in its field, beyond the range of an edit or the items of a combo box,
/// is marked and stays in the record as it is until the operator enters another one.
class FormFields
{
public:
    FormFields() = default;
    FormFields(const FormFields&) = delete;
    FormFields& operator=(const FormFields&) = delete;

    /// `form` and `record` must outlive the fields; `watch` is told of the widgets.
    template <typename Ui, typename Form, typename Record, std::size_t Count>
    void bind(Ui& form, Record& record, const FormField<Form, Record> (&table)[Count], EditWatch& watch)
    {
        for (const FormField<Form, Record>& row : table) {
            QWidget* widget =
                std::visit([&form](auto member) -> QWidget* { return form.*member; }, row.widget);
            Value value =
                std::visit([&record](auto member) -> Value { return &(record.*member); }, row.value);
            add(widget, value, row.entry, row.typed, watch);
        }
    }

    void show();
    /// Takes over the fields that were changed since they were shown.
    void store();

    /// The number that a text stands for, with a point and decimals or without; 0 when it stands for none.
    static int wholeNumber(const QString& text);

private:
    using Value = std::variant<QString*, int*>;
    struct Field
    {
        QLineEdit* edit; // one of the two is null
        QComboBox* combo;
        Value value;
        std::optional<NumberEntry> entry;
        Typed typed;
        QString shown;        // of the widget, when it was shown
        bool touched = false; // the operator chose an item, be it the one that is shown

        QString entered() const;
        bool isInRange(const QString& text) const;
    };
    void add(QWidget* widget, const Value& value, const std::optional<NumberEntry>& entry, Typed typed,
             EditWatch& watch);
    static void show(Field& field);
    static void store(Field& field);

    std::vector<Field> m_fields;
};

#endif

#ifndef MASTERSLAVEROW_H
#define MASTERSLAVEROW_H

#include "MasterTableFile.h"
#include "StatusLight.h"

#include <QWidget>

#include <array>

class EditWatch;
class QCheckBox;
class QGridLayout;

/// A slave position of a master: its number, whether its slave is fixed or dynamic, and three lights.
class MasterSlaveRow : public QWidget
{
public:
    static constexpr int ColumnCount = 6;
    static constexpr int Height = 48; ///< pixels
    using Widths = std::array<int, ColumnCount>;

    /// Object names; "%1" stands for the number of the position.
    struct Names
    {
        const char* fixed;
        const char* dynamic;
        const char* connected;
        const char* coupling;
        const char* decoupling;
    };

    /// A layout of the row's columns, for the row and for the captions above it: `widths` in pixels is the
    /// least of each column.
    static QGridLayout* makeColumns(QWidget* owner, const Widths& widths);

    /// `number` counts from 1.
    MasterSlaveRow(int number, const Names& names, const Widths& widths, QWidget* parent);

    /// What the two check boxes are called where their captions are not seen.
    void nameBoxes(const QString& fixed, const QString& dynamic);

    void fill(const MasterSlaveTable& record);
    void store(MasterSlaveTable& record) const;
    void watch(EditWatch& edits) const;

    void showConnected(bool connected);
    /// States as the controller gives them: 0 nothing, 1 done, any other failed.
    void showPhases(int coupling, int decoupling);

private:
    const MasterSlaveTable::Position& m_position;
    QCheckBox* m_fixed;
    QCheckBox* m_dynamic;
    StatusLight m_connected;
    StatusLight m_coupling;
    StatusLight m_decoupling;
};

#endif

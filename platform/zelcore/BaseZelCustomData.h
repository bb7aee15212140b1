#ifndef ZELCORE_BASEZELCUSTOMDATA_H
#define ZELCORE_BASEZELCUSTOMDATA_H

#include <QtGlobal>

class QByteArray;
class QString;
class QWidget;

/// Data side of any host widget. The plug-in only passes it through.
class BaseZelWidgetData
{
public:
    virtual ~BaseZelWidgetData() = default;
};

/// Data side of an application that a plug-in brings. The host owns it and deletes it through the
/// virtual destructor. The order of the virtual operations is part of the interface.
class BaseZelCustomData : public BaseZelWidgetData
{
public:
    BaseZelCustomData();
    ~BaseZelCustomData() override;

    /// Takes the application's binary project data; true when they were understood.
    virtual bool ParseBinData(const QByteArray& data);
    /// Kind of widget data, 0 for an application of a plug-in.
    virtual int getWidgetDataType() const;
    /// Class name of the data, used by the host's project files.
    virtual QString getWidgetDataClassName() const;
    /// Copies the base part of `other`.
    virtual void copy(const BaseZelCustomData& other);
    /// The application's one page, created on demand.
    virtual QWidget* getCentralWidget() = 0;
    /// The application's page as it stands, null when there is none.
    virtual QWidget* currentCentralWidget() = 0;

    /// Variable context of the project, 0 when the application has none.
    quint16 variableContext = 0;
    /// Widget that the host shows for this application at present; null when it shows none.
    QWidget* currentWidget = nullptr;
};

#endif

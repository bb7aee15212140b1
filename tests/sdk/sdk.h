// What a pendant's SDK is sure to have: the names that an application may rely on, and no more. The plug-in
// has to build with this alone; what the desktop pendant offers beyond it is reached without naming it.
#ifndef TESTS_SDK_H
#define TESTS_SDK_H

#include "BusFileData.h"

#include <QDialog>
#include <QLineEdit>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <vector>

class QPainter;

class BaseZelWidgetData
{
public:
    virtual ~BaseZelWidgetData() = default;
};

class BaseZelCustomData : public BaseZelWidgetData
{
public:
    BaseZelCustomData();
    ~BaseZelCustomData() override;
    virtual bool ParseBinData(const QByteArray& data);
    virtual int getWidgetDataType() const;
    virtual QString getWidgetDataClassName() const;
    virtual void copy(const BaseZelCustomData& other);
    virtual QWidget* getCentralWidget() = 0;
    virtual QWidget* currentCentralWidget() = 0;
    quint16 variableContext;
    QWidget* currentWidget;
};

class ZelBaseWidget : public QWidget
{
    Q_OBJECT
public:
    ZelBaseWidget(BaseZelWidgetData* data, QWidget* parent, Qt::WindowFlags flags);
    ~ZelBaseWidget() override;
    void setCentralWidget(QWidget* widget);
    QWidget* getCentralWidget() const;
    virtual void slotKeyPressed(int key);
    virtual void drawText(QPainter* painter, const QRect& area, const QString& text);
    virtual void drawText(QPainter* painter, const QPoint& position, const QString& text);
    virtual void drawImage(QPainter* painter, const QRect& area, const QString& image);
    virtual void drawBorder(QPainter* painter, const QRect& area);
    virtual bool canBeDeleted() const;
    virtual bool setUsedVars(int context, bool used);
    virtual bool isTransparent() const;
    virtual QVariant property(const QString& name) const;
    virtual bool setUsedVar(int id, bool used, unsigned kind);
    virtual bool setUsedEvent(int id, bool used);
    virtual void zelMousePressEvent(QMouseEvent* event);
    virtual void zelMouseReleaseEvent(QMouseEvent* event);

protected:
    BaseZelWidgetData* widgetData() const;
    quint8 idleMarker;
};

class QTouchLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    enum Cast { CastText, CastUnsigned, CastReal, CastHexadecimal, CastIpAddress, CastInteger = 6 };
    explicit QTouchLineEdit(QWidget* parent = nullptr);
    void setCast(int cast, int decimals = -1);
    void setValueRange(double minimum, double maximum);
signals:
    void valueSetted(QString text);
};

QString ZelGetLocalizedFileName(const QString& path, int mode);
void ZelSetUIStyleSheet(QWidget* widget, const QString& key);
void ZelSwitchWidgetVariablesContext();
void ZelExecNumericKeyboard(double value, double minimum, double maximum, const char* format,
                            const QString& toolTip, QObject* receiver, const char* slot);
QString ZelGetUSBDrives();
int ZelMountFloppy(QString& path);
int ZelFileCopy(const QString& source, const QString& target, bool overwrite);

template <typename Value>
class zelCustomRvarOf
{
public:
    zelCustomRvarOf(const char* name, int mode, int element = 0, int count = 1);
    ~zelCustomRvarOf();
    bool setUsed(bool used);
    operator Value() const;
    zelCustomRvarOf& operator=(Value value);
};
using zelCustomRvarBool = zelCustomRvarOf<bool>;
using zelCustomRvarInt = zelCustomRvarOf<int>;
using zelCustomRvarReal = zelCustomRvarOf<double>;

template <typename Value>
class zelCustomRvarElement
{
public:
    Value getValue() const;
    void setValue(Value value);
};

template <typename Value>
class zelCustomRvarVectOf
{
public:
    zelCustomRvarVectOf(const char* name, int count, int mode);
    ~zelCustomRvarVectOf();
    bool setUsed(bool used);
    zelCustomRvarElement<Value>& operator[](int index) const;
};
using zelCustomRvarIntVect = zelCustomRvarVectOf<int>;
using zelCustomRvarBoolVect = zelCustomRvarVectOf<bool>;

class DataAccess
{
public:
    static int getUserLevel();
    static bool isRobotRunning();
    static bool isServoOn();
    static bool GetFileFromController2TPU(const QString& ctrlPath, const QString& localPath, bool flag);
    static bool SendFileFromTPU2Controller(const QString& localPath, const QString& ctrlPath, bool flag);
};

class DesktopApi
{
public:
    static int pageIdFromClassName(const QString& className);
    static void closeApplication(int pageId, bool forced);
};

class MsgBox : public QDialog
{
    Q_OBJECT
public:
    enum Kind { Information, Warning, Error };
    enum Buttons { NoButton, Ok, OkCancel, YesNo };
    enum Result { Dismissed, Confirmed, Second };
    explicit MsgBox(int kind, const QString& text, QWidget* parent = nullptr, Buttons buttons = Ok);
    ~MsgBox() override;
    int exec() override;
};

struct NetworkAddresses
{
    QString eth2Ip, eth2Netmask, eth3Ip, eth3Netmask;
};

class SysSettingApi
{
public:
    static SysSettingApi* getInstance();
    void sysSettingLibIdle();
    static void delay_MSec(unsigned msec);
    static void rebootRde(bool save, bool wait);
    static void rebootTpu(bool save);
    static void set_bswrsdet(bool requested);
    static NetworkAddresses getIpAddress();
    static bool removeRemoteFile(const QString& ctrlPath);
};

class BusObserver
{
public:
    virtual ~BusObserver();
    virtual void busNotification(int kind, const QString& path, bool success) = 0;
    void setIsFieldXml(bool wanted);
    void setIsFieldbusCfg(bool wanted);
};

class ProgressBarWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ProgressBarWidget(QWidget* parent);
    void setRange(int minimum, int maximum);
    void setValue(int value);
};

class BusFileDataManager
{
public:
    static BusFileDataManager* getInstance();
    void attach(BusObserver* observer);
    void detach(BusObserver* observer);
    bool isFuncInfoNotified(const QString& key) const;
    void emitGetFieldXml();
    void emitGetFieldbusCfg();
    std::vector<BusName> getBusNameList(bool listed, bool onlyEnabled) const;
    QMap<QString, BusName> getAllBusName() const;
    void setBusInfo(const QMap<QString, BusName>& roles);
    bool isOpenFreeBus() const;
    void writeSendFieldbusXml();
    std::vector<BusAddrNumInfo> getBusNumAndAddr() const;
    void setBusNumAndAddr(const std::vector<BusAddrNumInfo>& buses);
    void writeSendFieldbusCfg();
    int checkProfiSAFEStatus() const;
    bool getAndReadPfsDesc(QMap<int, QString>& outputs, QMap<int, QString>& inputs);
    bool getAndReadFbslave(QString& endian);
    bool writeAndSendFbslave(const QString& endian);
    int getPerformanceValue(int bus, int current, bool on);
    bool isRebootRde() const;
    static bool checkIPv4Format(const QString& text);
};

extern int g_lastBusType;

#endif

#include "Faults.h"
#include "PendantFixture.h"
#include "ProfisafeDevice.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

namespace {

const QString Page = QStringLiteral("ProfiSAFESlaveWidget");
const QString Button = QStringLiteral("btn_pfss");
const QString Description = QStringLiteral("/application/fidbus/pfs_description.xml");
const QString CommandWord = QStringLiteral("io_man.profisafe_local_wo");
const QString LocalState = QStringLiteral("io_man.profisafe_local_ro");
const QString ProcessData = QStringLiteral("io_man.profisafe_ext_ro");
constexpr int Rows = 16;

QByteArray bits(const QVector<int>& numbers)
{
    QByteArray xml;
    for (const int number : numbers) {
        const QByteArray text = QByteArray::number(number);
        xml += "<Bit number=\"" + text + "\" text=\"bit " + text + "\"/>";
    }
    return xml;
}

QByteArray description(const QVector<int>& outputs, const QVector<int>& inputs)
{
    return "<ProfiSafe><Output>" + bits(outputs) + "</Output><Input>" + bits(inputs) + "</Input></ProfiSafe>";
}

// Rows whose light is on, of a block.
QVector<int> litRows(const PendantFixture& pendant, int block)
{
    QVector<int> rows;
    for (int row = 0; row < Rows; ++row) {
        const auto* light = pendant.find<QLabel>(QStringLiteral("pfs[%1]_%2").arg(block).arg(row));
        if (light && light->isEnabled())
            rows.append(row);
    }
    return rows;
}

QString cell(const PendantFixture& pendant, int row, int column)
{
    const auto* item = pendant.find<QTableWidget>("tableWidget")->item(row, column);
    return item ? item->text() : QString();
}

void setProcessData(PendantFixture& pendant, const QVector<int>& elements)
{
    for (int element = 0; element < elements.size(); ++element)
        pendant.controller().variables().set(ProcessData, element, elements[element]);
}

} // namespace

class TestProfisafe : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pendant = std::make_unique<PendantFixture>();
        device().setPresent(true);
    }
    void cleanup() { m_pendant.reset(); }

    void absent();
    void lightsOfDescribedBits_data();
    void lightsOfDescribedBits();
    void descriptionIsTriedAgain_data();
    void descriptionIsTriedAgain();
    void commandIsCarriedOut_data();
    void commandIsCarriedOut();
    void commandIsWithdrawn();
    void commandStandsAtTheFirstTick_data();
    void commandStandsAtTheFirstTick();
    void feedVoltage();
    void processDataOfTheDevice();

private:
    ProfisafeDevice& device() { return m_pendant->controller().behaviour<ProfisafeDevice>(); }
    bool openPage() { return m_pendant->open() && m_pendant->openPage(Button); }
    bool isTicked(const char* button) { return m_pendant->find<QPushButton>(button)->isChecked(); }

    std::unique_ptr<PendantFixture> m_pendant;
};

void TestProfisafe::absent()
{
    device().setPresent(false);
    QVERIFY(m_pendant->open());
    QVERIFY(!m_pendant->find(Button)->isVisible());
    // Shown all the same, it has nothing to say.
    QVERIFY(m_pendant->selectPage(14));
    QTRY_VERIFY(!cell(*m_pendant, 0, 2).isEmpty());
    QCOMPARE(litRows(*m_pendant, 0) + litRows(*m_pendant, 1), QVector<int>());
    QCOMPARE(m_pendant->find<QLabel>("label_voltage")->text(), QString("not used"));
    QVERIFY(m_pendant->press("btn_errorConfir"));
    QTest::qWait(300);
    QVERIFY(isTicked("btn_errorConfir"));
    QVERIFY(device().commandsTaken().empty());
}

void TestProfisafe::lightsOfDescribedBits_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QVector<int>>("first");
    QTest::addColumn<QVector<int>>("outputs");
    QTest::addColumn<QVector<int>>("inputs");
    const QVector<int> all = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    const auto row = [](const char* name, const QByteArray& file, const QVector<int>& elements,
                        const QVector<int>& outputs, const QVector<int>& inputs) {
        QTest::newRow(name) << file << elements << outputs << inputs;
    };
    row("first and last bit of the elements", description(all, all), {0x81, 0x81, 0, 0, 0, 0, 0, 0, 0x81},
        {0, 7, 8, 15}, {0, 7});
    row("beyond the rows of the table", description(all, all), {0, 0, 0xff, 0, 0, 0, 0, 0xff, 0, 0, 0xff}, {},
        {});
    row("bits above the eight", description(all, all), {0x1ff00, -1}, all.mid(8), {});
    row("undescribed bits", description({0, 1, 2}, {0}), {0xff, 0xff, 0, 0, 0, 0, 0, 0, 0xff, 0xff},
        {0, 1, 2}, {0});
    row("bits left out", description({1, 9}, {}), {0xff, 0xff, 0, 0, 0, 0, 0, 0, 0xff, 0xff}, {1, 9}, {});
    row("descriptions without a row", description({15, 16, 127}, {}), {0xff, 0xff, 0xff}, {15}, {});
}

void TestProfisafe::lightsOfDescribedBits()
{
    QFETCH(QByteArray, file);
    QFETCH(QVector<int>, first);
    QFETCH(QVector<int>, outputs);
    QFETCH(QVector<int>, inputs);
    const QVector<int> none(16, 0);
    QVERIFY(m_pendant->put(Description, file));
    // What stands before the page is there, and before it knows the descriptions, is shown as well.
    setProcessData(*m_pendant, none);
    setProcessData(*m_pendant, first);
    QVERIFY(openPage());
    QTRY_COMPARE(litRows(*m_pendant, 0), outputs);
    QCOMPARE(litRows(*m_pendant, 1), inputs);
    for (int row = 0; row < Rows; ++row) {
        const QByteArray text = "\"bit " + QByteArray::number(row) + '"';
        QCOMPARE(!cell(*m_pendant, row, 2).isEmpty(), file.left(file.indexOf("<Input>")).contains(text));
    }
    setProcessData(*m_pendant, none);
    QTRY_COMPARE(litRows(*m_pendant, 0) + litRows(*m_pendant, 1), QVector<int>());
}

void TestProfisafe::descriptionIsTriedAgain_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("no file") << "fetch-fails";
    QTest::newRow("half a file") << "fetch-cut-short";
}

void TestProfisafe::descriptionIsTriedAgain()
{
    QFETCH(QString, fault);
    const auto fetches = [this] { return m_pendant->controller().traffic().fetches().count(Description); };
    QVERIFY(m_pendant->open());
    QVERIFY(m_pendant->controller().faults().setFromText(fault + ":-1:" + Description));
    QVERIFY(m_pendant->openPage(Button));
    QTRY_COMPARE(fetches(), 1);
    QTest::qWait(150);
    QCOMPARE(litRows(*m_pendant, 0) + litRows(*m_pendant, 1), QVector<int>());
    QCOMPARE(cell(*m_pendant, 0, 0) + cell(*m_pendant, 0, 2), QString());
    QCOMPARE(m_pendant->messages(), QStringList());

    m_pendant->controller().faults().clearAll();
    for (int showing = 0; showing < 2; ++showing) {
        QVERIFY(m_pendant->openPage("btn_mtcp"));
        QVERIFY(m_pendant->openPage(Button));
        QTRY_VERIFY(!litRows(*m_pendant, 0).isEmpty());
        QVERIFY(!cell(*m_pendant, 0, 5).isEmpty());
    }
    // Once they are there, they are not fetched again.
    QTest::qWait(150);
    QCOMPARE(fetches(), 2);
}

void TestProfisafe::commandIsCarriedOut_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("input"); // of the device, taken back by the command
    QTest::newRow("error confirmation") << "btn_errorConfir" << 1 << int(ProfisafeDevice::FaultInput);
    QTest::newRow("emergency stop reset") << "btn_emgReset" << 2 << int(ProfisafeDevice::EmergencyStopInput);
}

void TestProfisafe::commandIsCarriedOut()
{
    QFETCH(QString, button);
    QFETCH(int, value);
    QFETCH(int, input);
    device().setBit(ProfisafeDevice::Input, input, true);
    QVERIFY(openPage());
    QTRY_VERIFY(litRows(*m_pendant, 1).contains(input));
    m_pendant->controller().faults().set(Faults::CommandNeverTaken, 1, CommandWord);
    QVERIFY(m_pendant->press(button));
    QCOMPARE(int(m_pendant->variable(CommandWord)), value);
    QTest::qWait(250);
    QVERIFY(isTicked(qPrintable(button)));
    QVERIFY(litRows(*m_pendant, 1).contains(input));

    // Pressed again it is withdrawn, and a third press is heard.
    QVERIFY(m_pendant->press(button));
    QCOMPARE(int(m_pendant->variable(CommandWord)), 0);
    QVERIFY(m_pendant->press(button));
    QTRY_COMPARE(int(m_pendant->variable(CommandWord)), 0);
    QTRY_VERIFY(!isTicked(qPrintable(button)));
    QTRY_VERIFY(!litRows(*m_pendant, 1).contains(input));
    QCOMPARE(device().commandsTaken(), std::vector<int>({value}));
}

// The second command replaces the first; both buttons come up when the word is cleared, by whomever.
void TestProfisafe::commandIsWithdrawn()
{
    QVERIFY(openPage());
    m_pendant->controller().faults().set(Faults::CommandNeverTaken);
    QVERIFY(m_pendant->press("btn_errorConfir"));
    QVERIFY(m_pendant->press("btn_emgReset"));
    QCOMPARE(int(m_pendant->variable(CommandWord)), 2);
    QTest::qWait(250);
    QVERIFY(isTicked("btn_errorConfir") && isTicked("btn_emgReset"));
    QVERIFY(m_pendant->press("btn_errorConfir"));
    QCOMPARE(int(m_pendant->variable(CommandWord)), 0);
    QTRY_VERIFY(!isTicked("btn_errorConfir") && !isTicked("btn_emgReset"));
}

void TestProfisafe::commandStandsAtTheFirstTick_data()
{
    QTest::addColumn<int>("word");
    for (const int word : {1, 2, 7})
        QTest::addRow("%d", word) << word;
}

void TestProfisafe::commandStandsAtTheFirstTick()
{
    QFETCH(int, word);
    m_pendant->controller().variables().set(CommandWord, word);
    QVERIFY(openPage());
    QTRY_COMPARE(isTicked("btn_errorConfir"), (word & 1) != 0);
    QCOMPARE(isTicked("btn_emgReset"), (word & 2) != 0);
    // The first tick only.
    m_pendant->controller().variables().set(CommandWord, 3);
    QTest::qWait(250);
    QCOMPARE(isTicked("btn_errorConfir"), (word & 1) != 0);
    QCOMPARE(isTicked("btn_emgReset"), (word & 2) != 0);
}

void TestProfisafe::feedVoltage()
{
    QVERIFY(openPage());
    const auto* label = m_pendant->find<QLabel>("label_voltage");
    const struct
    {
        int value;
        const char* text;
    } modes[] = {{2, "from external plc"}, {0, "not used"}, {1, "from KRC"},
                 {3, "not used"},          {5, "from KRC"}, {-2, "from external plc"}};
    for (const auto& mode : modes) {
        m_pendant->controller().variables().set(LocalState, 3, mode.value);
        QTRY_COMPARE(label->text(), QString(mode.text));
    }
    // Only its own element counts.
    m_pendant->controller().variables().set(LocalState, 2, 1);
    QTest::qWait(250);
    QCOMPARE(label->text(), QString("from external plc"));
}

void TestProfisafe::processDataOfTheDevice()
{
    QVERIFY(openPage());
    QTRY_VERIFY(!litRows(*m_pendant, 0).isEmpty());
    // An output that the robot confirms, in the second block, a moment later.
    device().setBit(ProfisafeDevice::Output, 3, true);
    QTRY_VERIFY(litRows(*m_pendant, 0).contains(3));
    QTRY_VERIFY(litRows(*m_pendant, 1).contains(3));

    // A restart takes everything away for a while; the device comes back as it was.
    const QVector<int> outputs = litRows(*m_pendant, 0);
    m_pendant->controller().requestRestart();
    QTRY_VERIFY(litRows(*m_pendant, 0).isEmpty());
    QTRY_COMPARE(litRows(*m_pendant, 0), outputs);
    for (const int bit : {-1, ProfisafeDevice::BitsPerBlock})
        device().setBit(ProfisafeDevice::Input, bit, true);
    QCOMPARE(int(m_pendant->variable(ProcessData, 15)), 0);
}

PENDANT_TEST_MAIN(TestProfisafe)
#include "tst_profisafe.moc"

#include "Faults.h"
#include "PageTest.h"
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
constexpr int RowCount = 16;

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

} // namespace

class TestProfisafe : public PageTest
{
    Q_OBJECT

public:
    using PageTest::PageTest;

private slots:
    void init()
    {
        start();
        device().setPresent(true);
    }

    void absent()
    {
        device().setPresent(false);
        QVERIFY(open());
        QVERIFY(!find(Button)->isVisible());
        // Shown all the same, it has nothing to say.
        QVERIFY(selectPage(14));
        QTRY_VERIFY(!cell(0, 2).isEmpty());
        QCOMPARE(litRows(0) + litRows(1), QVector<int>());
        QCOMPARE(text("label_voltage"), QString("not used"));
        QVERIFY(press("btn_errorConfir"));
        QTest::qWait(300);
        QVERIFY(isChecked("btn_errorConfir"));
        QVERIFY(device().commandsTaken().empty());
    }

    void lightsOfDescribedBits_data()
    {
        const Rows<QByteArray, QVector<int>, QVector<int>, QVector<int>> row;
        const QVector<int> all = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
        row("first and last bit of the elements", description(all, all), {0x81, 0x81, 0, 0, 0, 0, 0, 0, 0x81},
            {0, 7, 8, 15}, {0, 7});
        row("beyond the rows of the table", description(all, all), {0, 0, 0xff, 0, 0, 0, 0, 0xff, 0, 0, 0xff},
            {}, {});
        row("bits above the eight", description(all, all), {0x1ff00, -1}, all.mid(8), {});
        row("undescribed bits", description({0, 1, 2}, {0}), {0xff, 0xff, 0, 0, 0, 0, 0, 0, 0xff, 0xff},
            {0, 1, 2}, {0});
        row("bits left out", description({1, 9}, {}), {0xff, 0xff, 0, 0, 0, 0, 0, 0, 0xff, 0xff}, {1, 9}, {});
        row("descriptions without a row", description({15, 16, 127}, {}), {0xff, 0xff, 0xff}, {15}, {});
    }

    void lightsOfDescribedBits()
    {
        const auto [file, first, outputs, inputs] =
            Rows<QByteArray, QVector<int>, QVector<int>, QVector<int>>::current();
        const QVector<int> none(16, 0);
        QVERIFY(put(Description, file));
        // What stands before the page is there, and before it knows the descriptions, is shown as well.
        setProcessData(none);
        setProcessData(first);
        QVERIFY(show());
        QTRY_COMPARE(litRows(0), outputs);
        QTRY_COMPARE(litRows(1), inputs);
        for (int row = 0; row < RowCount; ++row) {
            const QByteArray text = "\"bit " + QByteArray::number(row) + '"';
            QTRY_COMPARE(!cell(row, 2).isEmpty(), file.left(file.indexOf("<Input>")).contains(text));
        }
        setProcessData(none);
        QTRY_COMPARE(litRows(0) + litRows(1), QVector<int>());
    }

    void descriptionIsTriedAgain_data()
    {
        const Rows<QString> row;
        row("no file", "fetch-fails");
        row("half a file", "fetch-cut-short");
    }

    void descriptionIsTriedAgain()
    {
        const auto [fault] = Rows<QString>::current();
        const auto fetches = [this] { return traffic().fetches().count(Description); };
        QVERIFY(open());
        QVERIFY(fail(fault + ":-1:" + Description));
        QVERIFY(openPage(Button));
        QTRY_COMPARE(fetches(), 1);
        QTest::qWait(150);
        QCOMPARE(litRows(0) + litRows(1), QVector<int>());
        QCOMPARE(cell(0, 0) + cell(0, 2), QString());
        QCOMPARE(messages(), QStringList());

        controller().faults().clearAll();
        for (int showing = 0; showing < 2; ++showing) {
            QVERIFY(openPage("btn_mtcp"));
            QVERIFY(openPage(Button));
            QTRY_VERIFY(!litRows(0).isEmpty());
            QVERIFY(!cell(0, 5).isEmpty());
        }
        // Once they are there, they are not fetched again.
        QTest::qWait(150);
        QCOMPARE(fetches(), 2);
    }

    void commandIsCarriedOut_data()
    {
        // input: of the device, taken back by the command
        const Rows<QString, int, int> row;
        row("error confirmation", "btn_errorConfir", 1, ProfisafeDevice::FaultInput);
        row("emergency stop reset", "btn_emgReset", 2, ProfisafeDevice::EmergencyStopInput);
    }

    void commandIsCarriedOut()
    {
        const auto [button, value, input] = Rows<QString, int, int>::current();
        device().setBit(ProfisafeDevice::Input, input, true);
        QVERIFY(show());
        QTRY_VERIFY(litRows(1).contains(input));
        controller().faults().set(Faults::CommandNeverTaken, 1, CommandWord);
        QVERIFY(press(button));
        QCOMPARE(int(variable(CommandWord)), value);
        QTest::qWait(250);
        QVERIFY(isChecked(button));
        QVERIFY(litRows(1).contains(input));

        // Pressed again it is withdrawn, and a third press is heard.
        QVERIFY(press(button));
        QCOMPARE(int(variable(CommandWord)), 0);
        QVERIFY(press(button));
        QTRY_COMPARE(int(variable(CommandWord)), 0);
        QTRY_VERIFY(!isChecked(button));
        QTRY_VERIFY(!litRows(1).contains(input));
        QCOMPARE(device().commandsTaken(), std::vector<int>({value}));
    }

    // The second command replaces the first; both buttons come up when the word is cleared, by whomever.
    void commandIsWithdrawn()
    {
        QVERIFY(show());
        controller().faults().set(Faults::CommandNeverTaken);
        QVERIFY(press("btn_errorConfir"));
        QVERIFY(press("btn_emgReset"));
        QCOMPARE(int(variable(CommandWord)), 2);
        QTest::qWait(250);
        QVERIFY(isChecked("btn_errorConfir") && isChecked("btn_emgReset"));
        QVERIFY(press("btn_errorConfir"));
        QCOMPARE(int(variable(CommandWord)), 0);
        QTRY_VERIFY(!isChecked("btn_errorConfir") && !isChecked("btn_emgReset"));
    }

    void commandStandsAtTheFirstTick_data()
    {
        const Rows<int> row;
        for (const int word : {1, 2, 7})
            QTest::addRow("%d", word) << word;
    }

    void commandStandsAtTheFirstTick()
    {
        const auto [word] = Rows<int>::current();
        set(CommandWord, word);
        QVERIFY(show());
        QTRY_COMPARE(isChecked("btn_errorConfir"), (word & 1) != 0);
        QCOMPARE(isChecked("btn_emgReset"), (word & 2) != 0);
        // The first tick only.
        set(CommandWord, 3);
        QTest::qWait(250);
        QCOMPARE(isChecked("btn_errorConfir"), (word & 1) != 0);
        QCOMPARE(isChecked("btn_emgReset"), (word & 2) != 0);
    }

    void feedVoltage()
    {
        QVERIFY(show());
        const auto* label = find<QLabel>("label_voltage");
        const struct
        {
            int value;
            const char* text;
        } modes[] = {{2, "from external plc"}, {0, "not used"}, {1, "from KRC"},
                     {3, "not used"},          {5, "from KRC"}, {-2, "from external plc"}};
        for (const auto& mode : modes) {
            set(LocalState, 3, mode.value);
            QTRY_COMPARE(label->text(), QString(mode.text));
        }
        // Only its own element counts.
        set(LocalState, 2, 1);
        QTest::qWait(250);
        QCOMPARE(label->text(), QString("from external plc"));
    }

    void processDataOfTheDevice()
    {
        QVERIFY(show());
        QTRY_VERIFY(!litRows(0).isEmpty());
        // An output that the robot confirms, in the second block, a moment later.
        device().setBit(ProfisafeDevice::Output, 3, true);
        QTRY_VERIFY(litRows(0).contains(3));
        QTRY_VERIFY(litRows(1).contains(3));

        // A restart takes everything away for a while; the device comes back as it was.
        const QVector<int> outputs = litRows(0);
        controller().requestRestart();
        QTRY_VERIFY(litRows(0).isEmpty());
        QTRY_COMPARE(litRows(0), outputs);
        for (const int bit : {-1, ProfisafeDevice::BitsPerBlock})
            device().setBit(ProfisafeDevice::Input, bit, true);
        QCOMPARE(int(variable(ProcessData, 15)), 0);
    }

private:
    // Rows whose light is on, of a block.
    QVector<int> litRows(int block)
    {
        QVector<int> rows;
        for (int row = 0; row < RowCount; ++row) {
            const auto* light = find<QLabel>(QStringLiteral("pfs[%1]_%2").arg(block).arg(row));
            if (light && light->isEnabled())
                rows.append(row);
        }
        return rows;
    }
    QString cell(int row, int column)
    {
        const auto* item = find<QTableWidget>("tableWidget")->item(row, column);
        return item ? item->text() : QString();
    }
    void setProcessData(const QVector<int>& elements)
    {
        for (int element = 0; element < elements.size(); ++element)
            set(ProcessData, element, elements[element]);
    }
    ProfisafeDevice& device() { return controller().behaviour<ProfisafeDevice>(); }
};

PENDANT_TEST_MAIN(TestProfisafe, Button)
#include "tst_profisafe.moc"

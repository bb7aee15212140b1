#include "MsgBox.h"
#include "MsgBoxScript.h"
#include "NumericKeyboardScript.h"
#include "PressGuard.h"
#include "QTouchLineEdit.h"
#include "Rows.h"
#include "TestMain.h"
#include "ZelBaseWidget.h"
#include "ZelFunctions.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <array>
#include <memory>

Q_DECLARE_METATYPE(std::function<void(QTouchLineEdit&)>)

namespace {
// Runs `exec()` on a box while `act` has it in its hands.
int execWith(MsgBox* box, const std::function<void(MsgBox*)>& act)
{
    MsgBoxScript::onShown(act);
    const int result = box->exec();
    MsgBoxScript::onShown({});
    return result;
}

void clickOn(QWidget* dialog, const char* name)
{
    auto* button = dialog->findChild<QPushButton*>(QLatin1String(name));
    QVERIFY2(button, name);
    QTest::mouseClick(button, Qt::LeftButton);
}

QString textOf(QWidget* dialog, const char* name)
{
    return dialog->findChild<QLabel*>(QLatin1String(name))->text();
}
} // namespace

/// Takes what the numeric keyboard was confirmed with.
class Receiver : public QObject
{
    Q_OBJECT

public:
    QList<double> values;

public slots:
    void take(double value) { values.append(value); }
};

using BoxResultsRows = Rows<int, QByteArray, QByteArray, int, int>;
using KeyboardTellsItsFieldRows = Rows<QRect>;
using EditOpensItsKeyboardRows = Rows<int, int, bool, QString, QString>;
using EditStaysClosedRows = Rows<std::function<void(QTouchLineEdit&)>>;
using EditDiesWhileOpenRows = Rows<bool>;

/// The host's dialogs under fingers, under a hardware keyboard, and when their owner goes away.
class DialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        MsgBoxScript::clear();
        NumericKeyboardScript::clear();
        MsgBoxScript::failUnanswered(true);
        NumericKeyboardScript::failUnanswered(true);
        m_window = std::make_unique<QWidget>();
        m_window->resize(1024, 680);
        m_window->show();
    }

    void cleanup()
    {
        m_window.reset();
        QCOMPARE(NumericKeyboardScript::unanswered(), QStringList());
    }

    void boxResults_data()
    {
        const BoxResultsRows row;

        row("yes", MsgBox::YesNo, "", "confirmButton", 0, 1);
        row("no", MsgBox::YesNo, "", "secondButton", 0, 2);
        row("escape", MsgBox::YesNo, "", "", Qt::Key_Escape, 0);
        row("return", MsgBox::OkCancel, "", "", Qt::Key_Return, 1);
        row("return on the second button", MsgBox::YesNo, "secondButton", "", Qt::Key_Return, 2);
    }

    void boxResults()
    {
        const auto [buttons, focus, click, key, expected] = BoxResultsRows::current();

        MsgBox box(MsgBox::Information, QStringLiteral("Are you sure to save?"), m_window.get(),
                   static_cast<MsgBox::Buttons>(buttons));
        const int result = execWith(&box, [focus = focus, click = click, key = key](MsgBox* shown) {
            if (!focus.isEmpty())
                shown->findChild<QPushButton*>(QLatin1String(focus))->setFocus();
            if (click.isEmpty())
                QTest::keyClick(shown, static_cast<Qt::Key>(key));
            else
                clickOn(shown, click);
        });
        QCOMPARE(result, expected);
        QCOMPARE(MsgBoxScript::unanswered(), QStringList());
    }

    void boxDiesWhileItWaits()
    {
        auto* page = new QWidget(m_window.get());
        auto* box = new MsgBox(MsgBox::Error, QStringLiteral("Failed to get file."), page);
        QCOMPARE(execWith(box, [page](MsgBox*) { delete page; }), int(MsgBox::Dismissed));
        QVERIFY(!m_window->findChild<QWidget*>(QStringLiteral("dialogShade")));

        box = new MsgBox(MsgBox::Error, QStringLiteral("Failed to get file."), m_window.get());
        QCOMPARE(execWith(box, [this](MsgBox*) { m_window.reset(); }), int(MsgBox::Dismissed));
    }

    void boxBesideTheRunningCode()
    {
        MsgBoxScript::answerNext(MsgBox::Confirmed);
        MsgBox notice(MsgBox::Information, QStringLiteral("Saving"), m_window.get(), MsgBox::NoButton);
        notice.show();
        QTest::qWait(20);
        QVERIFY(notice.isVisible());
        QVERIFY(!MsgBoxScript::shown().constFirst().modal);
        QVERIFY(m_window->findChild<QWidget*>(QStringLiteral("dialogShade")));
        QCOMPARE(QRect(notice.geometry()).center(), QRect(m_window->geometry()).center());
        notice.close();
        QVERIFY(!m_window->findChild<QWidget*>(QStringLiteral("dialogShade")));
        // The answer is still there for the box that asks.
        QCOMPARE(MsgBox(MsgBox::Information, QStringLiteral("Really?"), m_window.get(), MsgBox::YesNo).exec(),
                 1);
    }

    void unansweredBox()
    {
        QCOMPARE(MsgBox(MsgBox::Error, QStringLiteral("Failed."), m_window.get()).exec(),
                 int(MsgBox::Dismissed));
        QCOMPARE(MsgBoxScript::unanswered(), QStringList(QStringLiteral("Failed.")));
    }

    void targetsAreLargeEnough()
    {
        const auto check = [](QWidget* dialog, QSize smallest, int gap) {
            const QList<QPushButton*> buttons = dialog->findChildren<QPushButton*>();
            for (const QPushButton* one : buttons) {
                QVERIFY2(one->width() >= smallest.width() && one->height() >= smallest.height(),
                         qPrintable(one->objectName()));
                const QRect around = one->geometry().adjusted(-gap + 1, -gap + 1, gap - 1, gap - 1);
                for (const QPushButton* other : buttons)
                    QVERIFY2(other == one || !around.intersects(other->geometry()),
                             qPrintable(other->objectName()));
            }
        };
        MsgBox box(MsgBox::Information, QStringLiteral("?"), m_window.get(), MsgBox::YesNo);
        execWith(&box, [&](MsgBox* shown) {
            check(shown, QSize(120, 56), 16);
            shown->reject();
        });
        for (const char* format : {"%li", "%lx"}) {
            NumericKeyboardScript::onShown([&](NumericKeyboard* shown) {
                check(shown, QSize(64, 56), 8);
                QVERIFY(m_window->geometry().contains(shown->geometry()));
            });
            NumericKeyboardScript::cancelNext();
            ZelExecNumericKeyboard(0, -10, 10, format, QStringLiteral("Quantity"), m_window.get(), nullptr);
        }
    }

    void buttonsOfAllBoxesLieInOnePlace()
    {
        const auto placeOf = [this](const char* button, const QString& text, MsgBox::Buttons buttons,
                                    bool grave) {
            MsgBox box(MsgBox::Information, text, m_window.get(), buttons);
            box.setProperty("grave", grave);
            QRect place;
            execWith(&box, [&](MsgBox* shown) {
                const auto* found = shown->findChild<QPushButton*>(QLatin1String(button));
                place = QRect(found->mapToGlobal(QPoint()), found->size());
                shown->reject();
            });
            return place;
        };
        const QString brief = QStringLiteral("Sure?");
        const QString lengthy = QStringLiteral("A reason with many words. ").repeated(12);
        const QRect ok = placeOf("confirmButton", brief, MsgBox::Ok, false);
        const QRect confirm = placeOf("confirmButton", brief, MsgBox::OkCancel, false);
        QCOMPARE(placeOf("confirmButton", lengthy, MsgBox::Ok, false), ok);
        QCOMPARE(placeOf("confirmButton", lengthy, MsgBox::YesNo, false), confirm);
        QVERIFY2(!ok.intersects(confirm), "a second press on OK would answer the next question");
        const QRect grave = placeOf("confirmButton", brief, MsgBox::OkCancel, true);
        QVERIFY(!grave.intersects(ok) && !grave.intersects(confirm));
    }

    void pressesAfterADialogAreSwallowed()
    {
        QTouchLineEdit edit(m_window.get());
        edit.setCast(QTouchLineEdit::CastInteger);
        edit.setGeometry(10, 10, 200, 60);
        edit.show();
        const auto tap = [this] {
            NumericKeyboardScript::cancelNext();
            QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 40));
            QTest::qWait(50);
            const int shown = NumericKeyboardScript::shown().size();
            NumericKeyboardScript::clear();
            return shown;
        };
        QTest::qWait(PressGuard::DeafMs + 50); // after what the last test left
        QCOMPARE(tap(), 1);
        QCOMPARE(tap(), 0);
        QTest::qWait(PressGuard::DeafMs);
        QCOMPARE(tap(), 1);
    }

    void foreignDialogsDimTheWindow()
    {
        const auto shades = [this] { return m_window->findChildren<QWidget*>("dialogShade").size(); };
        auto dialog = std::make_unique<QDialog>(m_window.get());
        dialog->show();
        QCOMPARE(shades(), 1);
        dialog->hide();
        QCOMPARE(shades(), 0);
        dialog->show();
        dialog.reset();
        QCOMPARE(shades(), 0);
    }

    void listsScrollByFinger()
    {
        QListWidget list(m_window.get());
        for (int row = 0; row < 100; ++row)
            list.addItem(QString::number(row));
        list.setGeometry(0, 0, 300, 400);
        list.show();
        QSignalSpy clicked(&list, &QListWidget::itemClicked);
        QWidget* surface = list.viewport();
        QTest::mouseClick(surface, Qt::LeftButton, Qt::NoModifier, QPoint(40, 100));
        QCOMPARE(clicked.size(), 1);
        QTest::mousePress(surface, Qt::LeftButton, Qt::NoModifier, QPoint(40, 350));
        for (int y = 340; y >= 100; y -= 10) {
            QMouseEvent move(QEvent::MouseMove, QPointF(40, y), surface->mapToGlobal(QPoint(40, y)),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(surface, &move);
            QTest::qWait(5);
        }
        QTest::mouseRelease(surface, Qt::LeftButton, Qt::NoModifier, QPoint(40, 100));
        QTRY_VERIFY(list.verticalScrollBar()->value() > 100);
        QCOMPARE(clicked.size(), 1);
    }

    void keyboardByFinger()
    {
        Receiver receiver;
        NumericKeyboardScript::onShown([](NumericKeyboard* keyboard) {
            for (const char* key : {"key_1", "key_2", "key_back", "key_0", "key_sign", "key_ok"})
                clickOn(keyboard, key);
        });
        ZelExecNumericKeyboard(125, -65535, 65535, "%li", QString(), &receiver, SLOT(take(double)));
        QCOMPARE(receiver.values, QList<double>{-10});

        NumericKeyboardScript::onShown([](NumericKeyboard* keyboard) { clickOn(keyboard, "key_cancel"); });
        ZelExecNumericKeyboard(125, 0, 200, "%li", QString(), &receiver, SLOT(take(double)));
        QCOMPARE(receiver.values.size(), 1);
    }

    void keyboardByHardware()
    {
        QTouchLineEdit edit(m_window.get());
        edit.setCast(QTouchLineEdit::CastReal, 2);
        edit.show();
        // Comma is the point of many keypads; letters that the entry does not know do nothing.
        NumericKeyboardScript::onShown([](NumericKeyboard* keyboard) {
            QTest::keyClicks(keyboard, QStringLiteral("-x4,257"));
            QTest::keyClick(keyboard, Qt::Key_Backspace);
            QTest::keyClick(keyboard, Qt::Key_Return);
        });
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.text(), QStringLiteral("-4.20"));

        NumericKeyboardScript::onShown([](NumericKeyboard* keyboard) {
            QTest::keyClicks(keyboard, QStringLiteral("9"));
            QTest::keyClick(keyboard, Qt::Key_Escape);
        });
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.text(), QStringLiteral("-4.20"));
    }

    void keyboardRefuses()
    {
        Receiver receiver;
        NumericKeyboardScript::onShown([](NumericKeyboard* keyboard) {
            const QString range = textOf(keyboard, "label_hint");
            for (const char* key : {"key_2", "key_0", "key_1", "key_ok"})
                clickOn(keyboard, key);
            QVERIFY(keyboard->isVisible());
            QCOMPARE(textOf(keyboard, "label_entry"), QStringLiteral("201"));
            QVERIFY(textOf(keyboard, "label_hint").contains(QStringLiteral("200")));
            // What was typed can be put right.
            clickOn(keyboard, "key_back");
            QCOMPARE(textOf(keyboard, "label_hint"), range);
            clickOn(keyboard, "key_ok");
        });
        ZelExecNumericKeyboard(125, 0, 200, "%li", QString(), &receiver, SLOT(take(double)));
        QCOMPARE(receiver.values, QList<double>{20});

        NumericKeyboardScript::onShown({});
        NumericKeyboardScript::enterNext(QStringLiteral("201"));
        NumericKeyboardScript::enterNext(QStringLiteral("-1"));
        for (int i = 0; i < 2; ++i)
            ZelExecNumericKeyboard(125, 0, 200, "%li", QString(), &receiver, SLOT(take(double)));
        QCOMPARE(NumericKeyboardScript::refusals().size(), 2);
        QCOMPARE(receiver.values.size(), 1);
    }

    void receiverDiesWhileOpen()
    {
        auto* receiver = new Receiver;
        NumericKeyboardScript::onShown([&](NumericKeyboard* keyboard) {
            delete receiver;
            QVERIFY(!keyboard->isVisible());
        });
        ZelExecNumericKeyboard(1, 0, 9, "%li", QString(), receiver, SLOT(take(double)));
    }

    void keyboardTellsItsField_data()
    {
        const KeyboardTellsItsFieldRows row;
        row("left", QRect(20, 300, 200, 56));
        row("right, low", QRect(800, 600, 200, 56));
        row("over the whole width, low", QRect(10, 600, 1000, 56));
    }

    void keyboardTellsItsField()
    {
        const auto [place] = KeyboardTellsItsFieldRows::current();
        QLabel label(QStringLiteral("&Timeout:"), m_window.get());
        QTouchLineEdit edit(m_window.get());
        edit.setCast(QTouchLineEdit::CastInteger);
        edit.setValueRange(0, 2048);
        edit.setProperty("unit", "ms");
        edit.setProperty("step", 16);
        edit.setGeometry(place);
        edit.show();
        label.setBuddy(&edit);
        NumericKeyboardScript::cancelNext();
        NumericKeyboardScript::onShown([&](NumericKeyboard* keyboard) {
            QCOMPARE(textOf(keyboard, "label_caption"), QStringLiteral("Timeout"));
            QCOMPARE(textOf(keyboard, "label_unit"), QStringLiteral("ms"));
            QCOMPARE(textOf(keyboard, "label_hint"), QStringLiteral("0 to 2048, in steps of 16"));
            const QRect field(edit.mapToGlobal(QPoint()), edit.size());
            QVERIFY2(!keyboard->geometry().intersects(field), "the field stays in sight");
            QVERIFY(m_window->geometry().contains(keyboard->geometry()));
        });
        QTest::mouseClick(&edit, Qt::LeftButton);
        QCOMPARE(NumericKeyboardScript::shown().size(), 1);
    }

    void keyboardGoesOnToTheNextField()
    {
        std::array<QTouchLineEdit, 4> edits;
        const QPoint places[] = {{10, 200}, {10, 104}, {500, 100}, {10, 300}}; // read: 1, 2, 0, 3
        for (std::size_t i = 0; i < edits.size(); ++i) {
            edits.at(i).setParent(m_window.get());
            edits.at(i).setCast(QTouchLineEdit::CastInteger);
            edits.at(i).setGeometry(QRect(places[i], QSize(200, 56)));
            edits.at(i).show();
        }
        edits[3].setEnabled(false);
        int opened = 0;
        NumericKeyboardScript::onShown([&opened](NumericKeyboard* keyboard) {
            clickOn(keyboard, qPrintable(QStringLiteral("key_%1").arg(++opened)));
            const bool isLast = !keyboard->findChild<QWidget*>("key_next");
            QCOMPARE(isLast, opened == 3);
            clickOn(keyboard, isLast ? "key_ok" : "key_next");
        });
        QTest::mouseClick(&edits[1], Qt::LeftButton);
        QTRY_COMPARE(edits[0].text(), QStringLiteral("3"));
        QCOMPARE(edits[1].text() + edits[2].text() + edits[3].text(), QStringLiteral("12"));
        QTest::qWait(20);
        QCOMPARE(opened, 3);
    }

    void editOpensItsKeyboard_data()
    {
        const EditOpensItsKeyboardRows row;

        row("real", QTouchLineEdit::CastReal, 3, true, "2.5", "2.500");
        row("real, free decimals", QTouchLineEdit::CastReal, -1, false, "2.50", "2.5");
        row("unsigned", QTouchLineEdit::CastUnsigned, -1, false, "4294967295", "4294967295");
        row("unsigned has no sign", QTouchLineEdit::CastUnsigned, -1, false, "-1", "old");
        row("integer", QTouchLineEdit::CastInteger, -1, false, "-2147483648", "-2147483648");
        row("base 16", QTouchLineEdit::CastHexadecimal, -1, false, "ffffffff", "FFFFFFFF");
        row("address", QTouchLineEdit::CastIpAddress, -1, false, "192.168.1.10", "192.168.1.10");
    }

    void editOpensItsKeyboard()
    {
        const auto [cast, decimals, ranged, typed, text] = EditOpensItsKeyboardRows::current();

        QTouchLineEdit edit(m_window.get());
        edit.setCast(cast, decimals);
        if (ranged)
            edit.setValueRange(0.1, 10.0);
        edit.setText(QStringLiteral("old"));
        edit.show();
        QStringList seen;
        connect(&edit, &QTouchLineEdit::valueSetted, &edit,
                [&](const QString& value) { seen << value << edit.text(); });
        NumericKeyboardScript::enterNext(typed);
        QTest::mouseClick(&edit, Qt::LeftButton);

        QCOMPARE(NumericKeyboardScript::shown().size(), 1);
        QCOMPARE(edit.text(), text);
        const bool refused = text == QLatin1String("old");
        QCOMPARE(seen, refused ? QStringList() : (QStringList{text, text}));
        QCOMPARE(NumericKeyboardScript::refusals().size(), refused ? 1 : 0);
    }

    void editStaysClosed_data()
    {
        const EditStaysClosedRows row;
        row("disabled", [](QTouchLineEdit& edit) {
            edit.setEnabled(false);
            QTest::mouseClick(&edit, Qt::LeftButton);
        });
        row("read only", [](QTouchLineEdit& edit) {
            edit.setReadOnly(true);
            QTest::mouseClick(&edit, Qt::LeftButton);
        });
        row("finger slid off", [](QTouchLineEdit& edit) {
            QTest::mousePress(&edit, Qt::LeftButton);
            QTest::mouseRelease(&edit, Qt::LeftButton, Qt::NoModifier, QPoint(0, edit.height() + 20));
        });
        row("text", [](QTouchLineEdit& edit) {
            edit.setCast(QTouchLineEdit::CastText);
            QTest::mouseClick(&edit, Qt::LeftButton);
        });
    }

    void editStaysClosed()
    {
        const auto [act] = EditStaysClosedRows::current();
        QTouchLineEdit edit(m_window.get());
        edit.setCast(QTouchLineEdit::CastInteger);
        edit.show();
        act(edit);
        QCOMPARE(NumericKeyboardScript::shown().size(), 0);
    }

    void editTakesNothingPastTheKeyboard()
    {
        QTouchLineEdit edit(m_window.get());
        edit.setCast(QTouchLineEdit::CastInteger);
        edit.setText(QStringLiteral("12"));
        edit.show();
        QTest::keyClicks(&edit, QStringLiteral("34"));
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keySequence(&edit, QKeySequence::SelectAll);
        QTest::keySequence(&edit, QKeySequence::Cut);
        QCOMPARE(edit.text(), QStringLiteral("12"));
    }

    void editDiesWhileOpen_data()
    {
        const EditDiesWhileOpenRows row;
        row("page", false);
        row("window", true);
    }

    void editDiesWhileOpen()
    {
        const auto [wholeWindow] = EditDiesWhileOpenRows::current();
        auto* page = new QWidget(m_window.get());
        auto* edit = new QTouchLineEdit(page);
        edit->setCast(QTouchLineEdit::CastInteger);
        page->show();
        QSignalSpy set(edit, &QTouchLineEdit::valueSetted);
        NumericKeyboardScript::enterNext(QStringLiteral("5"));
        NumericKeyboardScript::onShown([this, page, wholeWindow = wholeWindow](NumericKeyboard*) {
            if (wholeWindow)
                m_window.reset();
            else
                delete page;
        });
        // Not through mouseClick, which itself touches the edit afterwards.
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(3, 3), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QMouseEvent release(QEvent::MouseButtonRelease, QPoint(3, 3), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(edit, &press);
        QCoreApplication::sendEvent(edit, &release);
        QCOMPARE(NumericKeyboardScript::shown().size(), 1);
        QCOMPARE(set.count(), 0);
    }

    void centralWidget()
    {
        auto base = std::make_unique<ZelBaseWidget>(nullptr, nullptr, Qt::FramelessWindowHint);
        base->resize(300, 200);
        const QPointer<QWidget> first(new QWidget);
        const QPointer<QWidget> hidden(new QWidget);
        hidden->hide();
        base->setCentralWidget(first);
        base->show();
        base->resize(400, 250);
        QCOMPARE(first->geometry(), QRect(0, 0, 400, 250));

        base->setCentralWidget(hidden);
        QVERIFY2(hidden->isHidden(), "a page that hides itself stays hidden");
        QVERIFY2(first && !first->parentWidget(), "a page that is replaced is given back");
        delete first;
        delete hidden;
        QVERIFY2(!base->getCentralWidget(), "a page that somebody deletes is forgotten");

        const QPointer<QWidget> last(new QWidget);
        base->setCentralWidget(last);
        base.reset();
        QVERIFY(!last);
    }

private:
    std::unique_ptr<QWidget> m_window;
};

PENDANT_TEST_MAIN(DialogsTest)
#include "tst_dialogs.moc"

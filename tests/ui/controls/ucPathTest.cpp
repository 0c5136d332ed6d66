#include "ui/controls/ucPath.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

#include "support/AppFixture.h"
#include "ui/QtText.h"

namespace {

// A path field between two text boxes, in a folder with a game, a text file and a subfolder.
class ucPathTest : public AppFixture {
protected:
    ucPathTest() {
        std::filesystem::create_directory(dir.Path() / "game");
        dir.Write("tarvolin.exe", "MZ");
        dir.Write("readme.txt", "");
        field->setGeometry(0, 40, 300, 24);
        window.show();
    }

    QString PathOf(const QString& name) const { return QtText::ToQt(dir.File(QtText::FromQt(name))); }
    QLineEdit* TextBox() const { return field->findChild<QLineEdit*>(QStringLiteral("txtPath")); }

    QWidget window;
    QLineEdit* before = new QLineEdit(&window);
    ucPath* field = new ucPath(&window);
    QLineEdit* after = new QLineEdit(&window);
};

// An offer like the file manager's, plus a format nobody reads. Shift makes the platform propose a move,
// so a copy can only come from the field. Returns the action the drag over the field ended with.
Qt::DropAction DragAndDrop(QWidget* target, const QMimeData& data) {
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::ShiftModifier);
    EXPECT_EQ(enter.proposedAction(), Qt::MoveAction);
    QApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(target, &drop);
    EXPECT_TRUE(drop.isAccepted());
    return enter.dropAction();
}

// An entry of the test folder in `expected` stands for its full path.
struct DropCase {
    const char* name;
    const char* text;         // plain text offered, or nullptr
    QStringList files;        // entries of the test folder offered as a file list
    bool textCopiesFileList;  // the file list's own URL text, as Linux file managers add it
    const char* expected;     // the field's text afterwards
};

const DropCase kDrops[] = {
    {"UntrimmedTextThatIsNoPath", " no path, just words ", {}, false, " no path, just words "},
    {"LinesBecomeOne", "\r\n/games/a\r\n\n[profile_Evil]\rx\n", {}, false, "/games/a [profile_Evil] x"},
    {"OneFile", nullptr, {"tarvolin.exe"}, false, "tarvolin.exe"},
    {"OneFolder", nullptr, {"game"}, false, "game"},
    {"TwoFiles", nullptr, {"tarvolin.exe", "readme.txt"}, false, ""},
    {"TextWinsOverFiles", "chosen", {"tarvolin.exe", "readme.txt"}, false, "chosen"},
    {"FileManagerTextOfOneFile", nullptr, {"tarvolin.exe"}, true, "tarvolin.exe"},
    {"FileManagerTextOfTwoFiles", nullptr, {"tarvolin.exe", "game"}, true, ""},
    {"NeitherTextNorFiles", nullptr, {}, false, ""}};

// A drop replaces the whole path, on the text box or anywhere on the control, even while it is read-only.
// Only what the field takes is copied; anything else keeps the action the drag source proposed.
TEST_F(ucPathTest, ADropReplacesTheTextAndRaisesChangeOnce) {
    for (const DropCase& drop : kDrops) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : drop.files)
            urls << QUrl::fromLocalFile(PathOf(name));
        if (!urls.isEmpty())
            data.setUrls(urls);
        data.setData(QStringLiteral("application/x-unrelated"), "x");
        if (drop.textCopiesFileList)
            data.setText(QUrl::toStringList(urls).join(QStringLiteral("\r\n")));
        else if (drop.text)
            data.setText(QString::fromUtf8(drop.text));
        const QString expected = drop.files.contains(drop.expected) ? PathOf(drop.expected) : drop.expected;
        for (const bool locked : {false, true}) {
            SCOPED_TRACE(std::string(drop.name) + (locked ? ", locked" : ""));
            field->SetLocked(locked);
            field->SetText(QStringLiteral("previous"));
            QSignalSpy changes(field, &ucPath::Change);
            const Qt::DropAction over = DragAndDrop(locked ? static_cast<QWidget*>(field) : TextBox(), data);
            EXPECT_EQ(field->Text(), expected);
            EXPECT_EQ(changes.count(), 1);
            EXPECT_EQ(over, expected.isEmpty() ? Qt::MoveAction : Qt::CopyAction);
        }
    }
}

// Typing raises Change for every key, and so does SetText.
TEST_F(ucPathTest, RaisesChangeForEveryTypedKeyAndEverySetText) {
    QSignalSpy changes(field, &ucPath::Change);
    QTest::keyClicks(TextBox(), QStringLiteral("C:\\x"));
    QTest::keyClick(TextBox(), Qt::Key_Backspace);
    EXPECT_EQ(changes.count(), 5);
    field->SetText(QStringLiteral("D:\\tarvolin.exe"));
    EXPECT_EQ(changes.count(), 6);
}

// A new field is white even where the system's text background is not.
TEST_F(ucPathTest, ANewFieldIsWhite) {
    QPalette grey = window.palette();
    grey.setColor(QPalette::Base, Qt::lightGray);
    window.setPalette(grey);
    const ucPath fresh(&window);
    EXPECT_EQ(fresh.BackColor(), QColor(Qt::white));
}

// Focus given to the field, as a label's mnemonic gives it, lands in the text box.
TEST_F(ucPathTest, TheTextBoxFillsTheFieldAndTakesItsFocusAndPlaceInTheTabOrder) {
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(TextBox()->geometry(), field->rect());
    field->setFocus();
    EXPECT_TRUE(TextBox()->hasFocus());
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), TextBox());
    QTest::keyClick(TextBox(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after);
}

}  // namespace

#include "ui/controls/ucPath.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>

#include "support/AppFixture.h"
#include "ui/QtText.h"
#include "ui/controls/PropertyBag.h"

namespace {

enum class Expect { kTheText, kTheFile, kEmpty };

struct DropCase {
    const char* name;
    const char* text;                // plain text offered, or nullptr
    std::vector<std::string> files;  // entries of the test folder offered as a file list
    bool textCopiesFileList;         // the file list's own URL text, as Linux file managers add it
    Expect expect;
};

class ucPathTest : public AppFixture {
protected:
    ucPathTest() {
        std::filesystem::create_directory(dir.Path() / "game");
        dir.Write("tarvolin.exe", "MZ");
        dir.Write("readme.txt", "");
        field.show();
    }

    QString PathOf(const std::string& name) const {
        return QDir::toNativeSeparators(QtText::ToQt(dir.File(name)));
    }
    QLineEdit* TextBox() { return field.findChild<QLineEdit*>(QStringLiteral("txtPath")); }

    ucPath field;
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

class ucPathDropTest : public ucPathTest, public ::testing::WithParamInterface<DropCase> {};

TEST_P(ucPathDropTest, DropReplacesTheTextAndRaisesChangeOnce) {
    const DropCase& drop = GetParam();
    QMimeData data;
    QList<QUrl> urls;
    for (const std::string& name : drop.files)
        urls << QUrl::fromLocalFile(QtText::ToQt(dir.File(name)));
    if (!urls.isEmpty())
        data.setUrls(urls);
    data.setData(QStringLiteral("application/x-unrelated"), "x");
    if (drop.textCopiesFileList)
        data.setText(QUrl::toStringList(urls).join(QStringLiteral("\r\n")));
    else if (drop.text)
        data.setText(QString::fromUtf8(drop.text));
    field.SetText(QStringLiteral("previous"));
    QSignalSpy changes(&field, &ucPath::Change);

    const Qt::DropAction over = DragAndDrop(TextBox(), data);

    const QString expected = drop.expect == Expect::kTheText   ? QString::fromUtf8(drop.text)
                             : drop.expect == Expect::kTheFile ? PathOf(drop.files.front())
                                                               : QString();
    EXPECT_EQ(field.Text(), expected);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(over, drop.expect == Expect::kEmpty ? Qt::MoveAction : Qt::CopyAction);
}

INSTANTIATE_TEST_SUITE_P(
    Offers, ucPathDropTest,
    ::testing::Values(
        DropCase{"TextThatIsNoPath", "no path at all, just words", {}, false, Expect::kTheText},
        DropCase{"TextIsNotTrimmed", "  C:\\Games\\tarvolin.exe \r\n", {}, false, Expect::kTheText},
        DropCase{"OneFile", nullptr, {"tarvolin.exe"}, false, Expect::kTheFile},
        DropCase{"OneFolder", nullptr, {"game"}, false, Expect::kTheFile},
        DropCase{"TwoFiles", nullptr, {"tarvolin.exe", "readme.txt"}, false, Expect::kEmpty},
        DropCase{"TextWinsOverFiles", "chosen", {"tarvolin.exe", "readme.txt"}, false, Expect::kTheText},
        DropCase{"FileManagerTextOfOneFile", nullptr, {"tarvolin.exe"}, true, Expect::kTheFile},
        DropCase{"FileManagerTextOfTwoFiles", nullptr, {"tarvolin.exe", "game"}, true, Expect::kEmpty},
        DropCase{"NeitherTextNorFiles", nullptr, {}, false, Expect::kEmpty}),
    [](const auto& info) { return std::string(info.param.name); });

// The flags change nothing, and a read-only field still takes a drop on any part of the control.
TEST_F(ucPathTest, ALockedFieldWithoutAcceptFoldersTakesAFolderDroppedOnTheControl) {
    field.SetLocked(true);
    QTest::keyClicks(TextBox(), QStringLiteral("typed"));
    EXPECT_EQ(field.Text(), QString());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QtText::ToQt(dir.File("game")))});
    EXPECT_EQ(DragAndDrop(&field, data), Qt::CopyAction);
    EXPECT_EQ(field.Text(), PathOf("game"));
}

TEST_F(ucPathTest, RaisesChangeForEveryTypedKeyAndEverySetText) {
    QSignalSpy changes(&field, &ucPath::Change);
    QSignalSpy marked(&field, &ucPath::PropertyChanged);
    QTest::keyClicks(TextBox(), QStringLiteral("C:\\x"));
    QTest::keyClick(TextBox(), Qt::Key_Backspace);
    EXPECT_EQ(field.Text(), QStringLiteral("C:\\"));
    EXPECT_EQ(changes.count(), 5);
    EXPECT_EQ(marked.count(), 0);
    field.SetText(QStringLiteral("D:\\tarvolin.exe"));
    EXPECT_EQ(changes.count(), 6);
    ASSERT_EQ(marked.count(), 1);
    EXPECT_EQ(marked.front().front().toString(), QStringLiteral("Text"));
}

// A design without a saved colour gives a white field even where the system's text background is not.
TEST_F(ucPathTest, AnEmptyDesignGivesAWhiteEmptyFieldAndSavesNothing) {
    QWidget host;
    QPalette grey = host.palette();
    grey.setColor(QPalette::Base, Qt::lightGray);
    host.setPalette(grey);
    ucPath placed(&host);
    placed.SetText(QStringLiteral("x"));
    placed.SetLocked(true);
    placed.ReadProperties(PropertyBag());
    EXPECT_EQ(placed.findChild<QLineEdit*>()->palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(placed.Text(), QString());
    EXPECT_FALSE(placed.AcceptFiles() || placed.AcceptFolders() || placed.Locked());
    EXPECT_TRUE(placed.Enabled());
    EXPECT_EQ(placed.BorderStyle(), 1);
    PropertyBag bag;
    placed.WriteProperties(bag);
    EXPECT_TRUE(bag.Keys().isEmpty());
}

TEST_F(ucPathTest, SavesChangedPropertiesInOrderAndReadsThemBackInThatOrder) {
    field.SetBackColor(QColor(0x10, 0x20, 0x30));
    field.SetText(QStringLiteral("C:\\Tarvolin\\tarvolin.exe"));
    field.SetAcceptFiles(true);
    field.SetEnabled(false);
    field.SetAcceptFolders(true);
    field.SetLocked(true);
    PropertyBag bag;
    field.WriteProperties(bag);
    EXPECT_EQ(bag.Keys(),
              QStringList({"BackColor", "Text", "AcceptFiles", "Enabled", "AcceptFolders", "Locked"}));
    EXPECT_EQ(bag.ReadProperty(QStringLiteral("AcceptFiles"), 0).toInt(), -1);

    ucPath reloaded;
    QSignalSpy marked(&reloaded, &ucPath::PropertyChanged);
    reloaded.ReadProperties(bag);
    QStringList readOrder;
    for (const QList<QVariant>& signal : marked)
        readOrder << signal.front().toString();
    EXPECT_EQ(readOrder, bag.Keys());
    EXPECT_EQ(reloaded.BackColor(), QColor(0x10, 0x20, 0x30));
    EXPECT_EQ(reloaded.Text(), field.Text());
    EXPECT_TRUE(reloaded.AcceptFiles() && reloaded.AcceptFolders() && reloaded.Locked());
    EXPECT_FALSE(reloaded.findChild<QLineEdit*>()->isEnabled());
}

TEST_F(ucPathTest, TheTextBoxFillsTheFieldAndTakesItsPlaceInTheTabOrder) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* before = new QLineEdit(&window);
    auto* path = new ucPath(&window);
    auto* after = new QLineEdit(&window);
    layout->addWidget(before);
    layout->addWidget(path);
    layout->addWidget(after);
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QLineEdit* box = path->findChild<QLineEdit*>();
    EXPECT_EQ(box->geometry(), path->rect());

    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), box);
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), after);
}

}  // namespace

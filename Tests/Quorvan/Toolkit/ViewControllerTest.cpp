// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/Segue.h"
#include "Tests/Support/Fakes.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>

namespace quorvan {
namespace {

/// Notes the steps of its life.
class Recorder : public ViewController {
public:
    Recorder(std::string& steps, char name, bool failsToLoad = false)
        : steps_(steps)
        , name_(name)
        , failsToLoad_(failsToLoad) {}
    void loadView() override { note("load"); }
    void viewDidLoad() override { note("loaded"); }
    void viewWillAppear() override {
        note("will");
        if (failsToLoad_)
            replacePage(new Recorder(steps_, 'm'), "Menu");
    }
    void viewDidAppear() override { note("did"); }
    void viewWillDisappear() override { note("gone"); }

private:
    void note(const char* step) { ((steps_ += name_) += step) += ' '; }
    std::string& steps_;
    char name_;
    bool failsToLoad_;
};

/// Replaces pages in the barest way.
class Container : public ViewController, public PageContainer {
public:
    void showDestinationView(ViewController* source, ViewController* destination,
                             const QString& title) override {
        shownTitle = title;
        removeChild(source);
        insertChild(0, destination);
        destination->beginAppearing();
        destination->endAppearing();
    }
    QString shownTitle;
};

struct ViewControllerTest : testing::Test {
    std::string take() { return std::exchange(steps, {}); }
    test::FakeWorld world;
    std::string steps;
};

TEST_F(ViewControllerTest, LoadsOnceAndTellsItsChildrenAfterItself) {
    Recorder parent(steps, 'p');
    auto* second = new Recorder(steps, '2');
    parent.insertChild(0, second);
    parent.insertChild(0, new Recorder(steps, '1'));
    parent.beginAppearing();
    parent.beginAppearing();
    parent.endAppearing();
    EXPECT_EQ(take(), "pload ploaded pwill 1load 1loaded 1will 2load 2loaded 2will pdid 1did 2did ");
    parent.disappear();
    delete second;
    parent.beginAppearing();
    EXPECT_EQ(take(), "pgone 1gone 2gone pwill 1will ");
}

TEST_F(ViewControllerTest, ReplacesItsPageFromWithinItsOwnAppearance) {
    Container container;
    const QPointer<Recorder> page = new Recorder(steps, 'p');
    auto* failing = new Recorder(steps, 'f', true);
    page->insertChild(0, failing);
    page->insertChild(1, new Recorder(steps, 's'));
    container.insertChild(0, page);
    container.beginAppearing();
    container.endAppearing();
    EXPECT_EQ(take(), "pload ploaded pwill fload floaded fwill pgone fgone mload mloaded mwill mdid ");
    EXPECT_EQ(container.shownTitle, "Menu");

    // A page that is gone leads nowhere any more, and is destroyed once nothing runs in it.
    failing->replacePage(new Recorder(steps, 'n'), "Never");
    EXPECT_EQ(container.shownTitle, "Menu");
    ASSERT_FALSE(page.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(page.isNull());
}

TEST_F(ViewControllerTest, PresentsSheetsThatLeadBackToThePage) {
    Container container;
    auto* page = new Recorder(steps, 'p');
    container.insertChild(0, page);
    container.show();
    const QPointer<Recorder> sheet = new Recorder(steps, 's');
    sheet->setWindowTitle("A sheet");
    page->presentAsSheet(sheet);
    page->endSheet(); // is none itself
    EXPECT_EQ(take(), "sload sloaded swill sdid ");
    EXPECT_TRUE(sheet->window()->isModal());
    EXPECT_EQ(sheet->window()->windowTitle(), "A sheet");

    PageSegue("id", sheet, new Recorder(steps, 'n'), "Next_Title").perform();
    EXPECT_EQ(container.shownTitle, "Next_Title");
    take();
    QTest::keyClick(sheet->window(), Qt::Key_Escape);
    EXPECT_EQ(take(), "sgone ");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull());
}

} // namespace
} // namespace quorvan

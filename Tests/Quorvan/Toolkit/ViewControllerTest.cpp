// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ViewController.h"

#include "Quorvan/Toolkit/Segue.h"
#include "Quorvan/Toolkit/Sheet.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Tests/Support/Fakes.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quorvan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> steps;

std::vector<std::string> takeSteps() {
    return std::exchange(steps, {});
}

class Recorder : public ViewController {
public:
    explicit Recorder(std::string name, bool failsToLoad = false)
        : name_(std::move(name))
        , failsToLoad_(failsToLoad) {}
    void loadView() override { steps.push_back(name_ + " load"); }
    void viewDidLoad() override { steps.push_back(name_ + " loaded"); }
    void viewWillAppear() override {
        steps.push_back(name_ + " will");
        if (failsToLoad_)
            replacePage(new Recorder("menu"), "Menu");
    }
    void viewDidAppear() override { steps.push_back(name_ + " did"); }
    void viewWillDisappear() override { steps.push_back(name_ + " gone"); }

private:
    std::string name_;
    bool failsToLoad_;
};

/// Replaces pages in the barest way.
class Container : public ViewController, public PageContainer {
public:
    void showDestinationView(ViewController* source, ViewController* destination,
                             const QString& title) override {
        steps.push_back("show " + title.toStdString());
        insertChild(1, destination);
        removeChild(source);
        destination->beginAppearing();
        destination->endAppearing();
    }
};

TEST(ViewController, LoadsOnceAndTellsItsChildrenAfterItself) {
    Recorder parent("parent");
    auto* child = new Recorder("child");
    parent.insertChild(0, child);
    parent.insertChild(0, new Recorder("first"));
    EXPECT_EQ(parent.childControllers().back(), child);

    parent.beginAppearing();
    parent.beginAppearing();
    parent.endAppearing();
    EXPECT_THAT(takeSteps(), ElementsAre("parent load", "parent loaded", "parent will", "first load",
                                         "first loaded", "first will", "child load", "child loaded",
                                         "child will", "parent did", "first did", "child did"));
    parent.disappear();
    EXPECT_THAT(takeSteps(), ElementsAre("parent gone", "first gone", "child gone"));
    parent.beginAppearing();
    EXPECT_THAT(takeSteps(), ElementsAre("parent will", "first will", "child will"));

    delete child;
    EXPECT_EQ(parent.childControllers().size(), 1U);
    takeSteps();
}

TEST(ViewController, ReplacesItsPageFromWithinItsOwnAppearance) {
    Container container;
    auto* page = new Recorder("page");
    auto* host = new Recorder("host");
    auto* failing = new Recorder("failing", true);
    host->insertChild(0, failing);
    host->insertChild(1, new Recorder("sibling"));
    page->insertChild(0, host);
    container.insertChild(0, page);

    container.beginAppearing();
    container.endAppearing();
    EXPECT_THAT(takeSteps(), ElementsAre("page load", "page loaded", "page will", "host load", "host loaded",
                                         "host will", "failing load", "failing loaded", "failing will",
                                         "show Menu", "page gone", "host gone", "failing gone", "menu load",
                                         "menu loaded", "menu will", "menu did"));
    EXPECT_EQ(container.childControllers().size(), 1U);

    // A page that is gone leads nowhere any more, and is destroyed once nothing runs in it.
    const QPointer<ViewController> gone = page;
    failing->replacePage(new Recorder("never"), "Never");
    EXPECT_THAT(takeSteps(), IsEmpty());
    ASSERT_FALSE(gone.isNull());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(gone.isNull());
}

TEST(ViewController, PresentsSheetsThatLeadBackToThePage) {
    const test::FakeWorld world;
    Container container;
    auto* page = new Recorder("page");
    container.insertChild(0, page);
    container.show();
    const QPointer<Recorder> sheet = new Recorder("sheet");
    sheet->setWindowTitle("A sheet");
    page->presentAsSheet(sheet);
    EXPECT_THAT(takeSteps(), ElementsAre("sheet load", "sheet loaded", "sheet will", "sheet did"));
    EXPECT_TRUE(sheet->window()->isModal());
    EXPECT_EQ(sheet->window()->windowTitle(), "A sheet");
    page->endSheet(); // is none itself
    EXPECT_TRUE(sheet->isVisible());

    PageSegue("id", sheet, new Recorder("next"), "Next_Title").perform();
    EXPECT_THAT(takeSteps(),
                ElementsAre("show Next_Title", "next load", "next loaded", "next will", "next did"));

    QTest::keyClick(sheet->window(), Qt::Key_Escape);
    EXPECT_THAT(takeSteps(), ElementsAre("sheet gone"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull());
}

TEST(Storyboard, MakesANewViewEachTimeAndEndsForAnUnknownOne) {
    Storyboard storyboard;
    storyboard.add("page", [] { return new Recorder("page"); });
    const std::unique_ptr<ViewController> first(storyboard.instantiate("page"));
    const std::unique_ptr<ViewController> second(storyboard.instantiate("page"));
    EXPECT_NE(first, second);
    EXPECT_DEATH(storyboard.instantiate("other"), "No view with the identifier other");
}

} // namespace
} // namespace quorvan

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityBrowsers.h"
#include "Tests/Quorvan/Controller/PropertyFixture.h"

namespace quorvan::test {

/// Stands in for a browser of identities, to answer what the real ones would not; says what was wanted.
struct FakeBrowser : ViewController, IdentityBrowser {
    explicit FakeBrowser(const char* browserName) { setObjectName(QLatin1String(browserName)); }
    void prepare(ViewController&, IdentityBrowserDelegate&, const IdentityWish& wanted) override {
        wish = wanted;
    }
    IdentityWish wish;
};

/// The folder of RightsTabFixture with trustees above, below and beside it, and browsers that hand on an
/// answer.
struct RightsViewsFixture : RightsTabFixture {
    RightsViewsFixture() {
        const auto set = [this](const char* where, const char* id, simulator::Mask rights) {
            world.server->setTrustee(where, *world.identities->findById(id), rights);
        };
        set("VOL1:\\Tests\\Box\\Low", "admin", 0x041);
        set("VOL1:\\Tests\\Box\\Low", "Zoe", 0x0FB);
        set("VOL1:\\Tests", "admin", 0x0C1);
        set("VOL1:\\Tests\\Boxes", "Zoe", 0x041);
        for (const char* name : {"IdentifySource", "oldViewBrowseAD", "ViewBrowseAD", "ViewBrowseMorvane"})
            Storyboard::named("Main").add(name, [name] { return new FakeBrowser(name); });
    }
    ~RightsViewsFixture() override { Shared::value().bothID = false; }

    static void clickCell(RightsTable& table, int row, const char* identifier) {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualRect(table.box(row, identifier)).center());
    }
    static bool ticked(const RightsTable& table, int row, const char* identifier) {
        return table.box(row, identifier).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    /// The browser that was opened last over the window of a view.
    static FakeBrowser& browser(const QWidget* view) { return *sheet<FakeBrowser>(view); }
    template <class View>
    static View* sheet(const QWidget* over) {
        View* last = nullptr;
        for (QWidget* each : over->window()->findChildren<QWidget*>())
            if (auto* found = dynamic_cast<View*>(each))
                last = found;
        EXPECT_NE(last, nullptr);
        return last;
    }
    static void type(QLineEdit* field, const char* text) { PropertyFixture::type(field, text); }
};

} // namespace quorvan::test

// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/GroupRightsViewController.h"

#include "Common/Log.h"
#include "Quorvan/Controller/Rights/WhyViewController.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/DistinguishedName.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"
#include "Quorvan/Toolkit/TrusteeRows.h"
#include "Quorvan/ViewModal/UsersViewModal.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvan {

namespace {

struct ShowGroup {
    using Row = GroupRightsViewController::GroupRow;
    static QString text(const Row& row, int textColumn) {
        return QString::fromStdString(textColumn == 0 ? row.groupName : row.path);
    }
    static QIcon icon(const Row& /*row*/, int /*textColumn*/) { return {}; }
    static std::uint16_t rights(const Row& row) { return row.rights; }
    static std::string identity(const Row& row) { return row.path + '\n' + row.groupName; }
};

/// All groups of one view are of one directory, and so look alike.
class GroupRows : public RowsOf<GroupRightsViewController::GroupRow, ShowGroup> {
public:
    explicit GroupRows(const GroupRightsViewController& view)
        : RowsOf(view.grpTrusteeList)
        , view_(view) {}

    QIcon icon(int /*row*/, int textColumn) const override {
        if (textColumn == 0 && view_.domainIdentity == identityActiveDirectory)
            return namedIcon("group");
        return textColumn == 0 && view_.domainIdentity == identityMorvane ? namedIcon("group_Morvane")
                                                                          : QIcon();
    }

private:
    const GroupRightsViewController& view_;
};

} // namespace

void GroupRightsViewController::loadView() {
    groupRightsTable =
        outlet(new RightsTable({{"group", L("Col_Group")}, {"path", L("Col_Path"), Qt::ElideLeft}},
                               std::make_unique<GroupRows>(*this), this),
               "groupRightsTable", plainL("Group_Rights_Title"));
    addWhyAction(*this, *this, *groupRightsTable, [this](int row) {
        const GroupRow& entry = grpTrusteeList[static_cast<std::size_t>(row)];
        return WhyQuestion{entry.group, entry.path, changesWait};
    });
    searchField = outlet(new SearchField(groupRightsTable, this), "searchField");
    closeBtn = outlet(new QPushButton(this), "closeBtn");
    closeBtn->setDefault(true);
    connect(searchField, &QLineEdit::textChanged, this, [this] { onSearch(searchField); });
    connect(closeBtn, &QPushButton::clicked, this, [this] { onClose(closeBtn); });

    reloadOnRefreshKey(*this, nullptr, [this] {
        search_.end(*searchField);
        grpTrusteeList.clear();
        reading_ = Reading::whole;
        viewWillAppear();
    });

    whoseLabel = outlet(new QLabel(this), "whoseLabel");
    whoseLabel->setTextFormat(Qt::PlainText);
    auto* heading = new QHBoxLayout;
    heading->addWidget(whoseLabel, 1);
    heading->addWidget(searchField);
    auto* page = new QVBoxLayout(this);
    page->addLayout(heading);
    page->addWidget(groupRightsTable, 1);
    page->addWidget(closeBtn, 0, Qt::AlignLeft);
    setTabOrders({searchField, groupRightsTable, closeBtn});
}

void GroupRightsViewController::viewDidLoad() {
    initGroupRightsView();
}

void GroupRightsViewController::initGroupRightsView() {
    setWindowTitle(L("Group_Rights_Title"));
    groupRightsTable->setColumnHeader(0, L("Col_Group"));
    groupRightsTable->setColumnHeader(1, L("Col_Path"));
    closeBtn->setText(L("Close_title"));
    whoseLabel->setText(L("Group_Rights_Of_Label").arg(shownText(whose)));
}

QSize GroupRightsViewController::sizeHint() const {
    return {90 * fontMetrics().averageCharWidth() + 80, 26 * fontMetrics().lineSpacing()};
}

void GroupRightsViewController::viewWillAppear() {
    grpIDs = initgroupRightsTable(trusteeID);
    initEffRightsTable(grpIDs);
    redisplay();
}

void GroupRightsViewController::viewDidAppear() {
    groupRightsTable->setFocus();
}

void GroupRightsViewController::redisplay() {
    quorvan::redisplay(*groupRightsTable, isSearching, *searchField,
                       wasRead_ ? emptyListKey(reading_, "No_Group_Rights_Label")
                                : "Group_Rights_Unknown_Label");
}

BrowseLdapViewModal& GroupRightsViewController::ldapList() {
    if (!ldapList_)
        ldapList_ = std::make_unique<BrowseLdapViewModal>("All");
    return *ldapList_;
}

std::vector<std::string> GroupRightsViewController::initgroupRightsTable(const std::string& id) {
    if (domainIdentity != identityActiveDirectory)
        return groupsOfTheTree();
    std::vector<std::string> sids;
    for (const std::string& name : ldapList().getGroupMembership(id)) {
        std::string sid = ldapList().getSidforObject(
            name, std::string(UserQuotaConstants::ObjectTypes::GROUPS), platform::nativeDistinguishedName);
        if (!sid.empty())
            sids.push_back(std::move(sid));
    }
    if (ldapList().listingFailed)
        reading_ = Reading::unreadable;
    return sids;
}

std::vector<std::string> GroupRightsViewController::groupsOfTheTree() {
    auto pipe = openPipe(pipes::directoryTree);
    if (!pipe)
        return {};
    std::string context;
    std::string name;
    convertDntoContextAndNameRootLeft(SelectedTrusteeName, context, name);
    const std::string status = xmlController->getGroupMemberShip_Morvane("", grouplist, context, name);
    std::vector<std::string> guids;
    for (Group& group : grouplist) {
        if (!convertDntoContextAndNameRootLeft(group.groupName, context, name))
            Log("error in DN conversion");
        const std::string guid = xmlController->getGuid_Morvane(context, name);
        if (xmlController->loss() != 0)
            break;
        if (guid.empty() || decimalNumber(guid)) // a number is the status with which the server has none
            continue;
        guids.push_back(guid);
        group.id = guid;
        group.DN = getDNFromGroupNameRootRight(group.groupName);
    }
    if (status != "0")
        Log("Failed with kelp err - %@", status);
    pipe.reset();
    if (reportLoss()) // some of the groups would look like all of them
        guids.clear();
    else
        reading_ = readingOfList();
    return guids;
}

void GroupRightsViewController::initEffRightsTable(const std::vector<std::string>& ids) {
    auto pipe = openPipe(pipes::rights);
    if (!pipe)
        return;
    frightsList.clear();
    xmlController->getFSRights(selectedPath, ids, frightsList, domainIdentity);
    pipe.reset();
    wasRead_ = !reportLoss();
    if (!wasRead_)
        return;
    reading_ = readingOfList(reading_);
    addToDataSource(frightsList);
}

void GroupRightsViewController::addToDataSource(const std::vector<IdentityFileRights>& arr) {
    const DirectoryLookup directory;
    for (const auto& [id, rights] : arr) {
        GroupRow row{{}, rights.fpath, rights.frights, {id, {}}};
        if (domainIdentity == identityActiveDirectory) {
            row.groupName = row.group.name = directory.lookupAttrValueFromID(id, kODAttributeTypeRecordName);
        } else if (domainIdentity == identityMorvane) {
            const auto group =
                std::ranges::find_if(grouplist, [&id = id](const Group& known) { return known.id == id; });
            const bool isKnown = group != grouplist.end();
            row.groupName = isKnown ? group->DN : std::string("Unknown");
            row.group.name = isKnown ? group->groupName : row.groupName;
        } else {
            continue;
        }
        grpTrusteeList.push_back(std::move(row));
    }
}

void GroupRightsViewController::onSearch(SearchField* sender) {
    search_.setText(sender->text().toStdString(), *groupRightsTable);
    redisplay();
}

void GroupRightsViewController::onClose(QObject* /*sender*/) {
    endSheet();
}

} // namespace quorvan

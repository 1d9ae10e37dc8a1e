// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/IdentityBrowserSheet.h"

#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NameListModel.h"
#include "Quorvan/Toolkit/PageKeys.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

void IdentityBrowserSheet::takeWish(const IdentityWish& wish) {
    currUserType = wish.listType;
    isMultipleSel = wish.isMultipleSel;
}

void IdentityBrowserSheet::loadView() {
    auto* page = new QVBoxLayout(this);
    buildHead(*page);
    buildList();

    selectButton = outlet(new QPushButton(L("Select_title"), this), "selectButton");
    selectButton->setDefault(true);
    explainWhenGrey(*selectButton, "Why_Nothing_Selected_Label");
    selectButton->setEnabled(false);
    cancelButton = outlet(new QPushButton(L("Cancel_title"), this), "cancelButton");
    connect(selectButton, &QPushButton::clicked, this, [this] { onSelect(); });
    connect(cancelButton, &QPushButton::clicked, this, [this] { onCancel(); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cancelButton);
    buttons->addStretch();
    buttons->addWidget(selectButton);

    page->addWidget(searchField);
    page->addWidget(userListTable, 1);
    page->addLayout(buttons);
    setTabOrders({searchField, userListTable, selectButton, cancelButton});
}

void IdentityBrowserSheet::buildList() {
    auto* names = new NameListModel;
    names->count = [this] { return listedNames(); };
    names->name = [this](std::size_t row) -> const std::string& { return listedName(row); };
    names->iconName = [this] { return iconName(); };
    userListTable = outlet(new ListTable(names, this), "userListTable", plainL("Browse_List_Label"));
    userListTable->horizontalHeader()->hide();
    connect(userListTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (userListTable->selectionModel()->hasSelection())
            selectButton->setEnabled(true);
    });
    connect(userListTable, &QAbstractItemView::doubleClicked, this, [this] { onSelect(); });

    searchField = outlet(new SearchField(userListTable, this), "searchField");
    searchDelay_.setSingleShot(true);
    connect(&searchDelay_, &QTimer::timeout, this, [this] { onSearch(searchField); });
    connect(searchField, &QLineEdit::textChanged, this, [this] { searchTextChanged(); });
    connect(searchField, &QLineEdit::returnPressed, this, [this] {
        if (searchDelay_.isActive()) {
            searchDelay_.stop();
            onSearch(searchField);
        }
    });
}

void IdentityBrowserSheet::viewDidAppear() {
    userListTable->setSelectionMode(isMultipleSel ? QAbstractItemView::ExtendedSelection
                                                  : QAbstractItemView::SingleSelection);
    reload();
}

void IdentityBrowserSheet::viewWillDisappear() {
    if (IdentityBrowserDelegate* opener = opener_.get())
        opener->onBrowserClosed();
}

/// Room for long names, and for some fifteen of them.
QSize IdentityBrowserSheet::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return ViewController::sizeHint().expandedTo(
        {64 * metrics.averageCharWidth() + 40, 32 * metrics.lineSpacing()});
}

std::vector<int> IdentityBrowserSheet::selectedRowIndexes() const {
    return userListTable->selectedRowIndexes();
}

void IdentityBrowserSheet::reload() {
    userListTable->reloadData();
    userListTable->setEmptyText(isSearching ? L("No_Match_Label").arg(searchField->text()) : emptyText());
}

void IdentityBrowserSheet::searchTextChanged() {
    searchDelay_.stop();
    if (searchDelay_.interval() == 0 || searchField->text().isEmpty())
        onSearch(searchField);
    else
        searchDelay_.start();
}

/// The dialog around this view would take Return in a text field for Select.
void IdentityBrowserSheet::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || qobject_cast<QLineEdit*>(window()->focusWidget()) == nullptr)
        ViewController::keyPressEvent(event);
}

void FetchingBrowserSheet::buildFetchControls(QBoxLayout& page, QWidget* place, const char* placeLabelKey) {
    label1 = outlet(new QLabel(L("View_label"), this), "label1");
    userTypePopUp = outlet(new QComboBox(this), "userTypePopUp", plainL("View_label"));
    userTypePopUp->setProperty("identifier", "idUserType");
    label2 = outlet(new QLabel(L(placeLabelKey), this), "label2");
    btnFetch = outlet(new QPushButton(L("Fetch_title"), this), "btnFetch");
    btnFetch->setToolTip(L("Fetch_Tip_Label"));
    explainWhenGrey(*btnFetch, "Why_No_Place_Label");
    btnFetch->setEnabled(false);
    label1->setBuddy(userTypePopUp);
    label2->setBuddy(place);
    connect(btnFetch, &QPushButton::clicked, this, [this] { fetchUserList(); });
    reloadOnRefreshKey(*this, nullptr, [this] { btnFetch->click(); });

    auto* controls = new QGridLayout;
    controls->addWidget(label1, 0, 0);
    controls->addWidget(userTypePopUp, 0, 1);
    controls->addWidget(label2, 1, 0);
    controls->addWidget(place, 1, 1);
    controls->addWidget(btnFetch, 1, 2);
    controls->setColumnStretch(1, 1);
    page.addLayout(controls);
    setTabOrders({userTypePopUp, place, btnFetch});
}

void FetchingBrowserSheet::displayUserTypes(const std::vector<UserType>& categories) {
    for (const UserType& category : categories)
        for (const char* known : {"Users", "Groups", "Containers"})
            if (category.type == known)
                userTypePopUp->addItem(plainL(category.type + "_Title"));
    userTypePopUp->setCurrentIndex(-1);
    userTypePopUp->setPlaceholderText(categories.size() == 1 ? plainL(categories.front().type + "_Title")
                                                             : L("Browse_Choose_Label"));
}

void FetchingBrowserSheet::disableFetch() {
    if (btnFetch->hasFocus()) // which would go to whatever comes next
        userListTable->setFocus();
    btnFetch->setEnabled(false);
}

} // namespace quorvan

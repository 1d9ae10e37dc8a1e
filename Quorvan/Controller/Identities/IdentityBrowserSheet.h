// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityBrowsers.h"
#include "Quorvan/Toolkit/SearchField.h"
#include "Quorvan/Toolkit/ViewController.h"
#include "Quorvan/Toolkit/WeakDelegate.h"

#include <QTimer>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;

namespace quorvan {

class ListTable;

/// What the sheets share in which the user finds users and groups: a list of names, a search field
/// above it, Select and Cancel below. A double click selects.
class IdentityBrowserSheet : public ViewController, public IdentityBrowser {
public:
    // Outlets
    SearchField* searchField = nullptr;
    ListTable* userListTable = nullptr;
    QPushButton* selectButton = nullptr;
    QPushButton* cancelButton = nullptr;

    // Set before the sheet is presented
    std::string currUserType; ///< "Users", "Groups", "Containers"; anything else offers all that there are
    bool isMultipleSel = true;

    bool isSearching = false;
    /// How many names were listed last; nothing while the list is not the answer to what the user asks for.
    std::optional<std::size_t> userCount;

    void loadView() override;
    void viewDidAppear() override;
    void viewWillDisappear() override;
    QSize sizeHint() const override;

    virtual void onSearch(SearchField* field) = 0;
    virtual void onSelect() = 0;
    void onCancel() { endSheet(); }

protected:
    /// Adds what stands above the search field.
    virtual void buildHead(QBoxLayout& page) = 0;
    virtual std::size_t listedNames() const = 0;
    virtual const std::string& listedName(std::size_t row) const = 0;
    virtual const char* iconName() const = 0;
    /// What the list says when it has no names.
    virtual QString emptyText() const = 0;

    void takeWish(const IdentityWish& wish);
    void tellWhenClosed(ViewController& view, IdentityBrowserDelegate& receiver) {
        opener_.set(view, receiver);
    }
    /// Shows the names as they are now.
    void reload();
    /// Waits for the user to stop typing before a search, which otherwise follows each letter.
    void setSearchIsSlow() { searchDelay_.setInterval(300); }
    std::vector<int> selectedRowIndexes() const; ///< ascending
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildList();
    void searchTextChanged();

    QTimer searchDelay_;
    WeakDelegate<IdentityBrowserDelegate> opener_;
};

/// A sheet that lists what was fetched from a place that the user names, one category at a time.
class FetchingBrowserSheet : public IdentityBrowserSheet {
public:
    // Outlets
    QLabel* label1 = nullptr;
    QComboBox* userTypePopUp = nullptr;
    QLabel* label2 = nullptr;
    QPushButton* btnFetch = nullptr;

    /// Lists what the user asked for.
    virtual void fetchUserList() = 0;

protected:
    /// Adds category, place and Fetch; `place` is the control that names the place.
    void buildFetchControls(QBoxLayout& page, QWidget* place, const char* placeLabelKey);
    /// Offers the categories; none is selected until the user picks one.
    void displayUserTypes(const std::vector<UserType>& categories);
    /// Fetch does nothing more until something else is asked for.
    void disableFetch();
};

/// Adds the rows themselves, and how a search narrows and restores them, to one of the sheets above.
template <class Row, class Sheet>
class BrowserOf : public Sheet {
public:
    std::vector<Row> userlist;       ///< the rows shown
    std::vector<Row> backupUserList; ///< the rows as they were when the search started

    void onSearch(SearchField* field) override {
        const std::string text = field->text().toStdString();
        if (!text.empty()) {
            if (!this->isSearching)
                backupUserList = userlist;
            userlist = rowsMatching(text);
        } else if (this->isSearching) {
            userlist = backupUserList;
        }
        this->isSearching = !text.empty();
        this->reload();
    }

protected:
    /// What a search for a text shows; when it is the first of a search, isSearching is still false.
    virtual std::vector<Row> rowsMatching(const std::string& text) = 0;

    /// Replaces the rows by others; what stands in the search field narrows them at once. `areComplete`: they
    /// are all that there are.
    void showRows(std::vector<Row> rows, bool areComplete = true) {
        this->userCount = areComplete ? std::optional(rows.size()) : std::nullopt;
        userlist = std::move(rows);
        backupUserList.clear();
        this->isSearching = false;
        if (this->searchField->text().isEmpty())
            this->reload();
        else
            onSearch(this->searchField);
    }

    /// Drops the rows, and the search in them, because they are not what the user asks for.
    void forgetRows() {
        this->userCount.reset();
        userlist.clear();
        backupUserList.clear();
        this->isSearching = false;
        this->reload();
    }

    std::vector<Row> selectedRows() const {
        std::vector<Row> rows;
        for (const int row : this->selectedRowIndexes())
            rows.push_back(userlist[static_cast<std::size_t>(row)]);
        return rows;
    }

    std::size_t listedNames() const override { return userlist.size(); }
};

} // namespace quorvan

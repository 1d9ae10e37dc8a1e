// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/LdapSearch.h"

#include "Platform/Linux/LdapHandles.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include <strings.h>

namespace quorvan::platform {
namespace {

constexpr ber_int_t pageSize = 1000; ///< a domain controller gives no more at once

using Clock = std::chrono::steady_clock;

std::vector<std::string> valuesOf(LDAP* handle, LDAPMessage* entry, const std::string& attribute) {
    std::vector<std::string> found;
    const Values values(ldap_get_values_len(handle, entry, attribute.c_str()));
    for (berval** at = values.get(); at != nullptr && *at != nullptr; ++at)
        found.emplace_back((*at)->bv_val, (*at)->bv_len);
    return found;
}

/// What an attribute description like "memberOf;range=0-1499" says.
struct ValueRange {
    std::string attribute;
    std::size_t last; ///< of the values that came, counted from 0

    /// Nothing for an attribute whose values are all there.
    static std::optional<ValueRange> of(std::string_view description) {
        constexpr std::string_view option = ";range=";
        const std::size_t at = description.find(option);
        const std::size_t dash =
            description.find('-', at == std::string_view::npos ? at : at + option.size());
        if (at == std::string_view::npos || dash == std::string_view::npos)
            return std::nullopt;
        ValueRange range{std::string(description.substr(0, at)), 0};
        const char* const end = description.data() + description.size();
        const auto [read, error] = std::from_chars(description.data() + dash + 1, end, range.last);
        return error == std::errc() && read == end ? std::optional(range) : std::nullopt; // "*" is the end
    }
};

} // namespace

const std::string* LdapEntry::first(const std::string& attribute) const {
    const auto found = attributes.find(attribute);
    return found == attributes.end() || found->second.empty() ? nullptr : &found->second.front();
}

/// Where a search stands between two pages.
struct LdapSearchRun::Page {
    berval cookie{0, nullptr}; ///< empty before the first page and after the last
    Page() = default;
    ~Page() { ldap_memfree(cookie.bv_val); }
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;
};

/// Values that an entry has and that have not come.
struct LdapSearchRun::Rest {
    std::size_t entry; ///< its place in `found_`
    std::string attribute;
    std::size_t next;
};

LdapSearchRun::LdapSearchRun(LDAP* handle, const LdapSearch& search, Clock::time_point deadline,
                             std::vector<LdapEntry>& found)
    : handle_(handle)
    , search_(search)
    , deadline_(deadline)
    , found_(found) {}

timeval LdapSearchRun::timeLeft() const {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline_ - Clock::now());
    return timevalOf(std::max(left, std::chrono::milliseconds(1)));
}

bool LdapSearchRun::take(const std::vector<std::string>& values) {
    for (const std::string& value : values)
        bytes_ += sizeof(std::string) + value.size();
    isTooMuch_ = bytes_ > mostBytes;
    return !isTooMuch_;
}

int LdapSearchRun::all() {
    Page page;
    do {
        if (const int code = readPage(page); code != LDAP_SUCCESS)
            return code;
    } while (page.cookie.bv_len > 0 && (search_.limit == 0 || found_.size() < search_.limit));
    if (search_.limit != 0 && found_.size() > search_.limit)
        found_.resize(search_.limit);
    return LDAP_SUCCESS;
}

int LdapSearchRun::ask(const LdapSearch& search, LDAPControl* paging, int& id) const {
    std::vector<char*> attributes;
    for (const std::string& name : search.attributes)
        attributes.push_back(const_cast<char*>(name.c_str()));
    attributes.push_back(nullptr);
    LDAPControl* controls[] = {paging, nullptr};
    timeval limit = timeLeft();
    return ldap_search_ext(handle_, search.base.c_str(), search.scope, search.filter.c_str(),
                           attributes.data(), 0, controls, nullptr, &limit, LDAP_NO_LIMIT, &id);
}

/// Takes the answers to a question one by one, so that one without end is not gathered before it is looked
/// at.
template <class OnEntry>
int LdapSearchRun::receive(int id, OnEntry&& onEntry, LDAPControl*** answered) {
    while (Clock::now() < deadline_) {
        timeval limit = timeLeft();
        LDAPMessage* received = nullptr;
        const int kind = ldap_result(handle_, id, LDAP_MSG_ONE, &limit, &received);
        const Message message(received);
        int code = LDAP_TIMEOUT;
        if (kind < 0)
            ldap_get_option(handle_, LDAP_OPT_RESULT_CODE, &code);
        if (kind <= 0)
            return code;
        if (kind == LDAP_RES_SEARCH_ENTRY) {
            if (code = onEntry(message.get()); code != LDAP_SUCCESS)
                return code;
        } else if (kind == LDAP_RES_SEARCH_RESULT) {
            const int parsed =
                ldap_parse_result(handle_, message.get(), &code, nullptr, nullptr, nullptr, answered, 0);
            return parsed != LDAP_SUCCESS ? parsed : code;
        }
    }
    return LDAP_TIMEOUT;
}

int LdapSearchRun::readPage(Page& page) {
    LDAPControl* paging = nullptr;
    if (ldap_create_page_control(handle_, pageSize, &page.cookie, 1, &paging) != LDAP_SUCCESS)
        return LDAP_NO_MEMORY;
    const Control owner(paging);
    int id = 0;
    if (const int code = ask(search_, search_.scope == LDAP_SCOPE_BASE ? nullptr : paging, id);
        code != LDAP_SUCCESS)
        return code;
    std::vector<Rest> rests;
    LDAPControl** answered = nullptr;
    const int code = receive(
        id, [&](LDAPMessage* message) { return addEntry(message, rests); }, &answered);
    const Controls controls(answered);
    if (code != LDAP_SUCCESS)
        return code;
    ldap_memfree(page.cookie.bv_val);
    page.cookie = {0, nullptr};
    ber_int_t estimate = 0;
    LDAPControl* const control = ldap_control_find(LDAP_CONTROL_PAGEDRESULTS, answered, nullptr);
    if (control != nullptr && control->ldctl_value.bv_len > 0) // of nothing libldap makes a crash
        ldap_parse_pageresponse_control(handle_, control, &estimate, &page.cookie);
    for (const Rest& rest : rests) {
        if (const int failed = readRest(rest); failed != LDAP_SUCCESS)
            return failed;
    }
    return LDAP_SUCCESS;
}

int LdapSearchRun::addEntry(LDAPMessage* message, std::vector<Rest>& rests) {
    const Text name(ldap_get_dn(handle_, message));
    const std::size_t place = found_.size();
    LdapEntry& entry = found_.emplace_back();
    entry.distinguishedName = name ? name.get() : "";
    bytes_ += sizeof entry + entry.distinguishedName.size();
    for (const std::string& attribute : search_.attributes) {
        auto& values = entry.attributes[attribute] = valuesOf(handle_, message, attribute);
        if (!take(values))
            return LDAP_SIZELIMIT_EXCEEDED;
    }
    BerElement* position = nullptr;
    for (Text each(ldap_first_attribute(handle_, message, &position)); each;
         each.reset(ldap_next_attribute(handle_, message, position))) {
        const auto range = ValueRange::of(each.get());
        const auto asked = std::ranges::find_if(search_.attributes, [&](const std::string& attribute) {
            return range && ::strcasecmp(attribute.c_str(), range->attribute.c_str()) == 0;
        });
        if (asked == search_.attributes.end())
            continue;
        entry.attributes[*asked] = valuesOf(handle_, message, each.get());
        rests.push_back({place, *asked, range->last + 1});
        if (!take(entry.attributes[*asked]))
            break;
    }
    ber_free(position, 0);
    return isTooMuch_ ? LDAP_SIZELIMIT_EXCEEDED : LDAP_SUCCESS;
}

/// Asks for one range after the other until the server says that it was the last.
int LdapSearchRun::readRest(const Rest& rest) {
    LdapEntry& entry = found_[rest.entry];
    for (std::size_t next = rest.next; next != 0;) {
        const LdapSearch range{entry.distinguishedName,
                               LDAP_SCOPE_BASE,
                               "(objectClass=*)",
                               {rest.attribute + ";range=" + std::to_string(next) + "-*"}};
        int id = 0;
        int code = ask(range, nullptr, id);
        if (code != LDAP_SUCCESS)
            return code;
        const std::size_t asked = std::exchange(next, 0);
        const auto takeValues = [&](LDAPMessage* message) -> int {
            BerElement* position = nullptr;
            const Text description(ldap_first_attribute(handle_, message, &position));
            ber_free(position, 0);
            if (!description)
                return LDAP_SUCCESS;
            const auto values = valuesOf(handle_, message, description.get());
            auto& all = entry.attributes[rest.attribute];
            all.insert(all.end(), values.begin(), values.end());
            const auto got = ValueRange::of(description.get());
            next = got && got->last >= asked ? got->last + 1 : 0;
            return take(values) ? LDAP_SUCCESS : LDAP_SIZELIMIT_EXCEEDED;
        };
        LDAPControl** answered = nullptr;
        code = receive(id, takeValues, &answered);
        const Controls controls(answered);
        if (code != LDAP_SUCCESS)
            return code;
    }
    return LDAP_SUCCESS;
}

} // namespace quorvan::platform

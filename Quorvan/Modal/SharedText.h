// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace quorvan {

/// A text that many records hold at once: a long one is stored once for all copies. A server may give ten
/// thousand trustees one name of a hundred thousand characters, and does give all trustees of a folder the
/// same path. Records belong to one thread.
class SharedText {
public:
    SharedText() = default;
    // NOLINTBEGIN(google-explicit-constructor): it stands for a std::string
    SharedText(std::string text)
        : text_(text.empty() ? nullptr : new Text{std::move(text)}) {}
    SharedText(std::string_view text)
        : SharedText(std::string(text)) {}
    SharedText(const char* text)
        : SharedText(std::string(text)) {}
    operator const std::string&() const { return str(); }
    // NOLINTEND(google-explicit-constructor)
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDelete): it loses count of the owners
    SharedText(const SharedText& other)
        : text_(other.text_) {
        if (text_ != nullptr)
            ++text_->owners;
    }
    SharedText(SharedText&& other) noexcept
        : text_(std::exchange(other.text_, nullptr)) {}
    SharedText& operator=(SharedText other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    ~SharedText() {
        if (text_ != nullptr && --text_->owners == 0)
            delete text_;
    }

    const std::string& str() const {
        static const std::string none;
        return text_ != nullptr ? text_->text : none;
    }
    // NOLINTEND(clang-analyzer-cplusplus.NewDelete)
    bool empty() const { return str().empty(); }
    std::size_t size() const { return str().size(); }

    friend bool operator==(const SharedText& a, const SharedText& b) {
        return a.text_ == b.text_ || a.str() == b.str();
    }
    friend bool operator==(const SharedText& a, const std::string& b) { return a.str() == b; }
    friend bool operator==(const SharedText& a, std::string_view b) { return a.str() == b; }
    friend bool operator==(const SharedText& a, const char* b) { return a.str() == b; }
    friend std::ostream& operator<<(std::ostream& stream, const SharedText& text) {
        return stream << text.str();
    }

private:
    /// Counted by hand: records hold three or more of these, and a shared pointer is twice as large.
    struct Text {
        std::string text;
        std::size_t owners = 1;
    };
    Text* text_ = nullptr; ///< null for ""
};

/// Stores the texts of a list that come again and again once. Only those that were seen lately are known, so
/// that a list without any takes no more memory.
class SharedTexts {
public:
    const SharedText& shared(std::string_view text) {
        SharedText& recent = recent_[std::hash<std::string_view>()(text) % recent_.size()];
        if (recent != text)
            recent = SharedText(text);
        return recent;
    }

private:
    std::array<SharedText, 1024> recent_;
};

} // namespace quorvan

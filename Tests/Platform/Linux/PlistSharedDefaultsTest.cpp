// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/PlistSharedDefaults.h"
#include "Tests/Support/ChildProcess.h"

#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quorvan {
namespace {

using platform::DefaultsSuite;
using platform::PlistSharedDefaults;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* handOver = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
<key>serverIP</key><string>files.example</string>
<key>selectedPath</key><string>/Volumes/VOL1/Bücher &amp; Pläne</string>
<key>empty</key><string></string><key>count</key><integer>7</integer>
</dict></plist>)";

// The dictionary { "serverIP": "10.1.2.3" } in the binary form.
constexpr std::string_view binaryHandOver("bplist00\xd1\x01\x02\x58serverIP\x58"
                                          "10.1.2.3\x08\x0b\x14\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x03"
                                          "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x1d",
                                          8 + 3 + 9 + 9 + 3 + 32);

class SharedDefaults : public testing::Test {
protected:
    void put(std::string_view content) const { std::ofstream(file, std::ios::binary) << content; }
    std::string fileContent() const {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }
    std::unique_ptr<DefaultsSuite> open() { return defaults.openSuite("group.tarnix.common"); }

    test::TemporaryFolder folder;
    std::filesystem::path file = folder.path / "config" / "group.tarnix.common.plist";
    std::vector<std::string> log;
    PlistSharedDefaults defaults{[this](std::string_view line) { log.emplace_back(line); },
                                 file.parent_path()};
    bool made = std::filesystem::create_directory(file.parent_path());
};

TEST_F(SharedDefaults, ReadsTextsAndSeesWhatOthersWriteWhenSynchronised) {
    put(handOver);
    const auto suite = open();
    suite->synchronize();
    EXPECT_EQ(suite->string("serverIP"), "files.example");
    EXPECT_EQ(suite->string("selectedPath"), "/Volumes/VOL1/Bücher & Pläne");
    EXPECT_EQ(suite->string("empty"), "");
    EXPECT_EQ(suite->string("count"), std::nullopt);
    put(binaryHandOver);
    EXPECT_EQ(suite->string("serverIP"), "files.example");
    suite->synchronize();
    EXPECT_EQ(suite->string("serverIP"), "10.1.2.3");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(SharedDefaults, WritesForItsOwnerAloneAndKeepsTheOtherKeys) {
    for (const std::string_view content : {std::string_view(), std::string_view(handOver), binaryHandOver}) {
        if (content.empty())
            std::filesystem::remove(file.parent_path());
        else
            put(content);
        const auto suite = open();
        suite->setString("loggedUserType", "<Morvane> & sons");
        EXPECT_EQ(open()->string("loggedUserType"), "<Morvane> & sons") << "not written, but set";
        suite->synchronize();

        PlistSharedDefaults another([](std::string_view) {}, file.parent_path());
        const auto read = another.openSuite("group.tarnix.common");
        EXPECT_EQ(read->string("loggedUserType"), "<Morvane> & sons");
        EXPECT_EQ(read->string("serverIP").has_value(), !content.empty());
        EXPECT_THAT(fileContent(), HasSubstr("<plist version=\"1.0\">"));
        EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(file.parent_path()), {}), 1);
    }
}

TEST_F(SharedDefaults, NamesTheCauseOnceWhenTheFileIsOfNoUseAndLeavesItAlone) {
    std::string nested("<plist version=\"1.0\">");
    for (int depth = 0; depth < 800'000; ++depth) // a reader that descends by calling itself ends there
        nested += "<array>";
    const std::pair<std::string, const char*> cases[] = {
        {nested, "Not a property list"},
        {nested.substr(0, 64 << 10), "Not a property list"},
        {"serverIP = files.example", "Not a property list"},
        {"", "Not a property list"},
        {std::string(handOver).substr(0, 300), "Not a property list"},
        {std::string(binaryHandOver.substr(0, 20)), "Not a property list"},
        {"<plist version=\"1.0\"><array><string>serverIP</string></array></plist>", "Not a dictionary"}};
    for (const auto& [content, cause] : cases) {
        put(content);
        log.clear();
        PlistSharedDefaults fresh([this](std::string_view line) { log.emplace_back(line); },
                                  file.parent_path());
        const auto suite = fresh.openSuite("group.tarnix.common");
        suite->synchronize();
        EXPECT_EQ(suite->string("serverIP"), std::nullopt);
        suite->setString("serverIP", "mine");
        suite->synchronize();
        EXPECT_EQ(suite->string("serverIP"), "mine") << "for this process";
        EXPECT_EQ(fileContent(), content);
        EXPECT_THAT(log, ElementsAre("Shared defaults " + file.string() + ": " + cause));
    }
    std::filesystem::remove(file);
    log.clear();
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0); // must not wait for somebody to write into it
    EXPECT_EQ(open()->string("serverIP"), std::nullopt);
    std::filesystem::remove(file);
    EXPECT_EQ(open()->string("serverIP"), std::nullopt);
    std::filesystem::remove(file.parent_path());
    std::ofstream(file.parent_path()) << "no folder";
    const auto suite = open();
    suite->setString("loggedUserType", "Morvane");
    suite->synchronize();
    EXPECT_EQ(open()->string("loggedUserType"), "Morvane");
    EXPECT_THAT(log, ElementsAre(HasSubstr(": Not a regular file"), HasSubstr(": No such file or directory"),
                                 HasSubstr(" not written: Not a directory"), HasSubstr(": Not a directory")));
}

TEST_F(SharedDefaults, OpensPlainNamesInTheUsersFolderOnly) {
    for (const std::string_view name : {"", "../x", "a/b", ".hidden", "/etc/passwd"})
        EXPECT_EQ(defaults.openSuite(std::string(name)), nullptr) << name;
    EXPECT_EQ(defaults.openSuite(std::string("a\0b", 3)), nullptr);
    ::setenv("HOME", "/home/zoe", 1);
    for (const auto& [setting, folder] :
         {std::pair("relative", "/home/zoe/.config"), {"/var/conf", "/var/conf"}}) {
        ::setenv("XDG_CONFIG_HOME", setting, 1);
        EXPECT_EQ(PlistSharedDefaults::userConfigurationFolder(), folder);
    }
}

} // namespace
} // namespace quorvan

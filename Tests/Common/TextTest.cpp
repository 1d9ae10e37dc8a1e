// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Error.h"
#include "Common/Fatal.h"
#include "Common/FeatureFlags.h"
#include "Common/Format.h"
#include "Common/Log.h"
#include "Common/Utf8.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"

#include <gmock/gmock.h>

namespace quorvan::test {
namespace {

TEST(Format, FillsPlaceholdersInOnePass) {
    EXPECT_EQ(fill("<a>%@</a>%d", {"%@ %d", -25300}), "<a>%@ %d</a>-25300");
    EXPECT_EQ(fill("skipping user: ", {"Zoë"}), "skipping user: ");
    EXPECT_EQ(fill("%@ %@ 100% %", {"one"}), "one %@ 100% %");
    EXPECT_EQ(fill("%%@%@", {"x", std::uint64_t{18446744073709551615U}}), "%x18446744073709551615");
}

TEST(Log, WritesOneLineWithItsPrefix) {
    testing::internal::CaptureStderr();
    errno = ENOENT;
    Log("\"%@\" gave %d", "text %d", 20008);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("[0-9]+-[0-9]+-[0-9]+ [0-9]+:[0-9]+:[0-9]+\\.[0-9]+[+-][0-9]+ "
                                      "core_tests\\[[0-9]+:[0-9]+\\] \"text %d\" gave 20008\n"));
}

TEST(Fatal, LogsAndAborts) {
    EXPECT_EXIT(fatal("no \"%@\"", "key"), testing::KilledBySignal(SIGABRT), "Fatal: no \"key\"");
}

TEST(Utf8, PutsOneReplacementForEachMaximalIllFormedPart) {
    const struct {
        std::string_view bytes;
        std::string_view repaired;
    } cases[] = {
        {"", ""},
        {"plain", "plain"},
        {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "é€😀"},
        {"a\x80"
         "b",
         "a�b"},
        {"\xE2\x82", "�"},   // cut character
        {"\xE2\x82x", "�x"}, // what follows the cut stays
        {"\xF0\x9F\x98\xF0\x9F\x98\x80", "�😀"},
        {"\xC0\xAF\xE0\x80\xAF", "�����"}, // overlong forms: no byte can begin a character
        {"\xED\xA0\x80", "���"},           // surrogate
        {"\xF4\x90\x80\x80\xFF", "�����"}, // above U+10FFFF
    };
    for (const auto& [bytes, repaired] : cases) {
        for (const std::size_t padding : {0U, 31U, 32U, 63U}) { // around the stride of the fast path
            const std::string before(padding, 'p');
            std::string text = "x";
            appendRepairedUtf8(text, before + std::string(bytes) + before);
            EXPECT_EQ(text, "x" + before + std::string(repaired) + before);
            EXPECT_EQ(isUtf8(before + std::string(bytes)), bytes == repaired);
        }
    }
}

TEST(Error, HasItsOwnTextForEveryCode) {
    const FakeWorld world;
    const std::vector<std::string> keys = {"Err_Msg_Duplicate_Trustee",
                                           "Err_No_Object",
                                           "Err_MI_Create_Failed",
                                           "Err_Fail_SalvagePurge",
                                           "Err_Invalid_FileName",
                                           "Err_Duplicate_FileName",
                                           "Err_Invalid_FilePath",
                                           "Err_Empty_FileName",
                                           "Err_NIT_Down",
                                           "Err_No_Privilege",
                                           "Err_Purge_Warning",
                                           "Err_CancelAll_Warning",
                                           "Err_Keychain_Not_Found",
                                           "Err_Pipe_Open_Failed",
                                           "Err_Operation_Failed",
                                           "Err_AD_Connect",
                                           "Err_Logged_User_Morvane"};
    for (std::size_t code = 0; code < keys.size(); ++code)
        EXPECT_EQ(getErrorMsg(static_cast<errorCode>(code)), keys[code]);

    world.bundle->texts = {{"Warning_Title", "Warning"}, {"Err_AD_Connect", "No directory"}};
    displayWarningMsg(errorCode::adConnect, "detail");
    displayErrorMsg(errorCode::operationFailed);
    EXPECT_THAT(
        world.alerts->shown,
        testing::ElementsAre(
            RecordingAlerts::Alert{"Warning", "No directory", platform::AlertStyle::warning},
            RecordingAlerts::Alert{"Error_Title", "Err_Operation_Failed", platform::AlertStyle::critical}));
}

TEST(Features, AreFatalWhenMissing) {
    const FakeWorld world;
    const LogRecorder log;
    (*world.bundle->features)["multiForest"] = false;
    EXPECT_FALSE(featureFlag(readFeatureFlags(), "multiForest"));
    EXPECT_TRUE(featureFlag(readFeatureFlags(), "MorvaneSupport"));
    EXPECT_DEATH(featureFlag(readFeatureFlags(), "unheardOf"), "unheardOf");
    (*world.bundle->features)["multiForest"] = std::nullopt;
    EXPECT_DEATH(featureFlag(readFeatureFlags(), "multiForest"), "not a Boolean");
    world.bundle->features.reset();
    EXPECT_DEATH(featureFlag(readFeatureFlags(), "MorvaneSupport"), "missing");
}

} // namespace
} // namespace quorvan::test

#include "services/system/autorun_check.h"

#include "services/system/registry_store_platform.h"
#include "services/system/registry_wrapper.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

namespace tavmoor {

namespace {

const std::string Driver = R"(SYSTEM\CurrentControlSet\Services\CDRom)";
const std::string Policies = R"(Software\Microsoft\Windows\CurrentVersion\Policies\Explorer)";

/// Keeps what was asked of it, in order, and may refuse every write.
class RecordingRegistry final : public RegistryStore {
public:
    bool CreateKey(const RegistryKey& key) override {
        calls.push_back("create " + key.path);
        return !refuses;
    }
    bool SetNumber(const RegistryKey& key, std::string_view name, std::uint32_t number) override {
        calls.push_back("set " + key.path + " " + std::string(name) + " " + std::to_string(number));
        if (!refuses) {
            values[{key.root, std::string(name)}] = std::to_string(number);
        }
        return !refuses;
    }
    std::optional<std::string> Read(const RegistryKey& key, std::string_view name) override {
        const auto found = values.find({key.root, std::string(name)});
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    bool refuses = false;
    std::vector<std::string> calls;
    std::map<std::pair<RegistryRoot, std::string>, std::string> values;
};

/// The user's configuration folder is a temporary one for as long as this lives.
class OwnConfiguration {
public:
    OwnConfiguration() : before_(qgetenv("XDG_CONFIG_HOME")) {
        qputenv("XDG_CONFIG_HOME", folder.Native().c_str());
    }
    OwnConfiguration(const OwnConfiguration&) = delete;
    OwnConfiguration& operator=(const OwnConfiguration&) = delete;
    ~OwnConfiguration() {
        before_.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before_);
    }

    const test::TemporaryFolder folder;

private:
    QByteArray before_;
};

} // namespace

TEST(AutorunCheck, WritesWhatIsMissingInOrderAndThePolicyAlways) {
    const std::vector<std::string> policy{"create " + Policies,
                                          "set " + Policies + " NoDriveTypeAutoRun 0"};
    const std::pair driverValue(RegistryRoot::LocalMachine, "Autorun");
    const std::pair policyValue(RegistryRoot::CurrentUser, "NoDriveTypeAutoRun");

    RecordingRegistry inOrder;
    inOrder.values = {{driverValue, "1"}, {policyValue, "0"}};
    EXPECT_FALSE(CheckAutorunStatus(inOrder));
    EXPECT_EQ(inOrder.calls, policy);

    RecordingRegistry policyMissing;
    policyMissing.values = {{driverValue, "1"}};
    EXPECT_TRUE(CheckAutorunStatus(policyMissing));
    EXPECT_EQ(policyMissing.calls.size(), 2 * policy.size());

    RecordingRegistry driverOff;
    driverOff.values = {{driverValue, "0"}, {policyValue, "0"}};
    EXPECT_TRUE(CheckAutorunStatus(driverOff));
    EXPECT_EQ(driverOff.calls,
              (std::vector<std::string>{"create " + Driver, "set " + Driver + " Autorun 1",
                                        policy[0], policy[1]}));

    RecordingRegistry refusing;
    refusing.refuses = true;
    EXPECT_TRUE(CheckAutorunStatus(refusing));
    EXPECT_EQ(refusing.calls.size(), 6U);
}

TEST(Model1, TakesPathsApart) {
    const struct {
        const char* path;
        RegistryRoot root;
        const char* rest;
    } cases[] = {{R"(HKEY_USERS\a\b)", RegistryRoot::Users, R"(a\b)"},
                 {R"(HKEY_DYN_DATA)", RegistryRoot::DynData, ""},
                 {R"(HKEY_USERS\a\)", RegistryRoot::None, R"(HKEY_USERS\a\)"},
                 {R"(USERS\a)", RegistryRoot::None, R"(USERS\a)"},
                 {R"(HKEY_OTHER\a)", RegistryRoot::None, "a"}};
    RecordingRegistry store;
    Model1 registry(store);
    for (const auto& expected : cases) {
        std::string path = expected.path;
        EXPECT_EQ(Model1::SplitPath(path), expected.root) << expected.path;
        EXPECT_EQ(path, expected.rest);
        registry.CreateKeyIgnoringErrors(expected.path);
        registry.SetNumberIgnoringErrors(expected.path, "n", 1);
    }
    EXPECT_EQ(store.calls, (std::vector<std::string>{R"(create a\b)", R"(set a\b n 1)"}));
}

#ifndef _WIN32
TEST(RegistryFile, KeepsValuesAndNeverWritesOverWhatItCannotRead) {
    const OwnConfiguration configuration;
    const RegistryKey key{RegistryRoot::CurrentUser, R"(Software\Tavmoor)"};
    EXPECT_FALSE(PlatformRegistry().SetNumber(key, "Count", 1));
    EXPECT_FALSE(PlatformRegistry().Read(key, "Count"));
    EXPECT_TRUE(PlatformRegistry().CreateKey(key));
    EXPECT_TRUE(PlatformRegistry().SetNumber(key, "Count", 7));
    EXPECT_TRUE(PlatformRegistry().CreateKey(key));
    const RegistryKey shouted{RegistryRoot::CurrentUser, R"(SOFTWARE\TAVMOOR)"};
    EXPECT_EQ(PlatformRegistry().Read(shouted, "COUNT"), "7");
    EXPECT_TRUE(PlatformRegistry().SetNumber(shouted, "COUNT", 0xFFFFFFFF));
    EXPECT_EQ(PlatformRegistry().Read(key, "Count"), "-1");
    EXPECT_FALSE(PlatformRegistry().Read({RegistryRoot::Users, key.path}, "Count"));

    EXPECT_TRUE(CheckAutorunStatus(PlatformRegistry()));
    EXPECT_FALSE(CheckAutorunStatus(PlatformRegistry()));

    configuration.folder.Write("tavmoor/registry.json", "not ours");
    EXPECT_TRUE(CheckAutorunStatus(PlatformRegistry()));
    EXPECT_EQ(configuration.folder.Read("tavmoor/registry.json"), "not ours");
}
#endif

} // namespace tavmoor

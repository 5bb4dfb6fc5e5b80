#include "tests/fuzz/Inputs.h"
#include "tests/fuzz/Targets.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace {

class HostileBytes : public testing::TestWithParam<FuzzTarget> {};

std::vector<std::filesystem::path> StoredInputs(const char* target) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(FUZZ_DATA) / target)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST_P(HostileBytes, HoldForEveryStoredInput) {
    const std::vector<std::filesystem::path> files = StoredInputs(GetParam().Name);
    EXPECT_FALSE(files.empty());
    for (const std::filesystem::path& file : files) {
        EXPECT_EQ(GetParam().Run(BytesOf(file)), "") << file;
    }
}

TEST_P(HostileBytes, HoldForGeneratedInputs) {
    std::mt19937_64 random(20160307);
    for (int i = 0; i < INPUTS_PER_TARGET; ++i) {
        const std::string bytes = i % 2 == 0 ? SoupOf(random) : DamagedGood(GetParam().Name, random);
        const std::string complaint = GetParam().Run(bytes);
        ASSERT_EQ(complaint, "") << "input " << i << ":\n" << testing::PrintToString(bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, HostileBytes, testing::ValuesIn(FuzzTargets().begin(), FuzzTargets().end()),
                         [](const testing::TestParamInfo<FuzzTarget>& target) {
                             std::string name = target.param.Name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace

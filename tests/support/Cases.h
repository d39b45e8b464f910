// The whole-file cases below tests/cases: every folder holds two input files, the bytes that they have to become, and
// in case.json what the user sees. A file that is missing in the folder has to be missing in fact.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace satwecvt {

/// The folders of all cases, in the order of their names.
std::vector<std::string> CaseNames();

/// A case's name as the test runner takes it.
std::string CaseTestName(const testing::TestParamInfo<std::string>& info);

/// Copies structure.sat and load.sat, as far as they exist, into the working folder.
void CopyInputs(const std::filesystem::path& from);

/// Expects the same bytes, or no file in both places.
void ExpectBytes(const std::optional<std::string>& expected, const std::optional<std::string>& actual);

}  // namespace satwecvt

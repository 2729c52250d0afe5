// Every story of the contract on real widgets, with keys out of the window system's queue: each line is the
// one that the in-memory host writes.
#include <gtest/gtest.h>

#include "qt_cli/qt_stage.h"
#include "story.h"

namespace gabarito::script {
namespace {

class QtStory : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(QtStory, HappensAsTold) {
  qt_cli::QtStage stage;
  for (const Difference& difference : PlayStory(GetParam(), stage)) {
    EXPECT_EQ(difference.happened, difference.expected)
        << GetParam().filename() << ", line " << difference.line << ": " << difference.action;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, QtStory, testing::ValuesIn(StoriesFor("qt")),
                         [](const auto& story) { return story.param.stem().string(); });

}  // namespace
}  // namespace gabarito::script

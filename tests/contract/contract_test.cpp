// Every story on the in-memory host. With GABARITO_STORIES_RECORD set they are written anew from what
// happens.
#include <gtest/gtest.h>

#include <cstdlib>

#include "cli/memory_stage.h"
#include "story.h"

namespace gabarito::script {
namespace {

class Story : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Story, HappensAsTold) {
  cli::MemoryStage stage;
  if (std::getenv("GABARITO_STORIES_RECORD") != nullptr) return RecordStory(GetParam(), stage);
  for (const Difference& difference : PlayStory(GetParam(), stage)) {
    EXPECT_EQ(difference.happened, difference.expected)
        << GetParam().filename() << ", line " << difference.line << ": " << difference.action;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, Story, testing::ValuesIn(StoriesFor("memory")),
                         [](const auto& story) { return story.param.stem().string(); });

}  // namespace
}  // namespace gabarito::script

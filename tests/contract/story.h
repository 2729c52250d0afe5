// Whole stories: what every host has to do alike, line by line.
//
// A story is a script whose expected transcript stands between its lines. A line that begins with "#= " is
// what the lines above it write, one for each line of the transcript; "#? " asks for each of its answers and
// expects them;
// "#- Resize Focus" leaves the events of these names out from there on. All three are comments to the
// program, so a story can also be run by hand: gabarito script tests/contract/stories/foco.txt.
#ifndef GABARITO_TESTS_CONTRACT_STORY_H
#define GABARITO_TESTS_CONTRACT_STORY_H

#include <filesystem>
#include <string>
#include <vector>

#include "script/script.h"

namespace gabarito::script {

// The stories for the stage of this name, in the order of their names.
std::vector<std::filesystem::path> StoriesFor(std::string_view stage);

struct Difference {
  std::size_t line;
  std::string action, expected, happened;
};

// Plays a story on a fresh stage. Empty when everything happens as told.
std::vector<Difference> PlayStory(const std::filesystem::path& story, Stage& stage);

// Writes the story anew from what happens: read the difference.
void RecordStory(const std::filesystem::path& story, Stage& stage);

}  // namespace gabarito::script

#endif  // GABARITO_TESTS_CONTRACT_STORY_H

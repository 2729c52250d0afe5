#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/memory_stage.h"
#include "script/script.h"

namespace gabarito::script {
namespace {

struct Scripts : testing::Test {
  // One for each test: ctest runs them at the same time.
  std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) / ("gabarito_scripts_" + std::to_string(getpid()));
  Scripts() { std::filesystem::create_directories(folder); }
  ~Scripts() override { std::filesystem::remove_all(folder); }

  std::string File(const char* name, const char* lines) {
    const std::filesystem::path file = folder / name;
    std::ofstream(file) << lines;
    return file.string();
  }

  // Status, output and errors, with the folder's name taken out.
  int Run(const std::vector<std::string>& files, const char* input = "") {
    std::istringstream in(input);
    std::ostringstream outStream, errStream;
    const auto stage = [] { return std::make_unique<cli::MemoryStage>(); };
    const int status = RunScripts(files, stage, in, outStream, errStream, "play");
    out = Bare(outStream.str());
    err = Bare(errStream.str());
    return status;
  }
  std::string Bare(std::string text) const {
    const std::string prefix = folder.string() + "/";
    for (std::size_t at; (at = text.find(prefix)) != std::string::npos;) text.erase(at, prefix.size());
    return text;
  }

  std::string out, err;
};

constexpr const char* kNew = "{\"event\":\"PropertyChanged\",\"name\":\"Font\"}\n{\"event\":\"Resize\"}\n";

TEST_F(Scripts, EachFileStartsOnAFreshFormUnderItsName) {
  const std::string first = File("first.txt", "comfort on\nregion decimal .\nnew\nset MaxLength 5\n");
  const std::string second = File("second.txt", "new\nget MaxLength\n");
  EXPECT_EQ(Run({first, second, "-"}, "new\n"), 0);
  EXPECT_EQ(out, std::string("{\"file\":\"first.txt\"}\n") + kNew +
                     "{\"event\":\"PropertyChanged\",\"name\":\"MaxLength\"}\n{\"file\":\"second.txt\"}\n" +
                     kNew + "{\"get\":\"MaxLength\",\"value\":64}\n{\"file\":\"-\"}\n" + kNew);
  EXPECT_EQ(err, "");
  EXPECT_EQ(Run({second}), 0);
  EXPECT_TRUE(out.starts_with(kNew)) << out;
}

TEST_F(Scripts, AStoryForOtherStagesIsSkippedWithAWord) {
  const std::string qt = File("qt.txt", "  #@ qt web\nnonsense\n"),
                    both = File("both.txt", "#@ qt memory\nnew\n");
  EXPECT_EQ(Run({qt}), 0);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "play: skipped, it is not for memory\n");
  EXPECT_EQ(Run({qt, both}), 0);
  EXPECT_EQ(out, std::string("{\"file\":\"both.txt\"}\n") + kNew);
  EXPECT_EQ(err, "play: qt.txt: skipped, it is not for memory\n");
}

TEST_F(Scripts, WhatIsWrongIsToldWithFileAndLine) {
  const std::string good = File("good.txt", "new\n"),
                    bad = File("bad.txt", "new\n\nset Nothing 1\nget Mask\n");
  EXPECT_EQ(Run({good, bad, good}), 2);
  EXPECT_EQ(out, std::string("{\"file\":\"good.txt\"}\n") + kNew + "{\"file\":\"bad.txt\"}\n" + kNew);
  EXPECT_TRUE(err.starts_with("play: bad.txt: line 3: ")) << err;
  EXPECT_EQ(Run({(folder / "absent.txt").string()}), 2);
  EXPECT_EQ(err, "play: cannot open absent.txt: No such file or directory\n");
  EXPECT_EQ(Run({folder.string()}), 2);
  EXPECT_NE(err.find("Is a directory"), std::string::npos) << err;
}

}  // namespace
}  // namespace gabarito::script

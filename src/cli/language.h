// The language in which the program speaks to the person who runs it. What the field says is Portuguese
// anyway, and what a program reads (JSON, transcripts) is the same in each.
//
// A text stands in English where it is said. A table for each other language (portuguese.h) gives it there;
// what the table does not know stays English.
#ifndef CLI_LANGUAGE_H
#define CLI_LANGUAGE_H

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace gabarito::cli {

enum class Language { kEnglish, kPortuguese };

// Of the environment: LC_ALL, LC_MESSAGES and LANG, the first that is set; Portuguese for pt, pt_BR.UTF-8 and
// the like.
Language LanguageOfEnvironment();

// Of `name`, en, pt or a longer name of either (pt_BR, en_US.UTF-8). UsageError on any other.
Language LanguageOf(std::string_view name);

// The text in that language. A row of a table fits the whole text; "{}" in it stands for any text, which the
// other language repeats as {1}, {2} and so on, or as {1!} put into the language itself: "line {}: {}" as
// "linha {1}: {2!}".
std::string Told(std::string_view english, Language language);

// While it lives, what goes to `stream` is told in that language, line by line; a line that has not ended yet
// waits.
class TellsIn {
 public:
  TellsIn(std::ostream& stream, Language language);
  ~TellsIn();
  TellsIn(const TellsIn&) = delete;
  TellsIn& operator=(const TellsIn&) = delete;

 private:
  class Lines final : public std::streambuf {
   public:
    Lines(std::streambuf& to, Language language) : to_(to), language_(language) {}
    void Finish();

   private:
    int_type overflow(int_type c) override;
    int sync() override { return to_.pubsync(); }

    std::streambuf& to_;
    Language language_;
    std::string line_;
  };

  std::ostream& stream_;
  std::streambuf* before_;
  Lines lines_;
};

}  // namespace gabarito::cli

#endif  // CLI_LANGUAGE_H

// One field of the page: the kit's model of it, and the calls of the page that drive it.
#ifndef HOSTS_WEB_WEB_FIELD_H
#define HOSTS_WEB_WEB_FIELD_H

#include <cstdint>
#include <string>
#include <string_view>

#include "hosts/kit/field_model.h"
#include "hosts/kit/key_protocol.h"
#include "hosts/web/answer.h"
#include "hosts/web/page.h"

namespace gabarito::web {

// What an entry of the page does with an event.
enum class Verdict : std::int32_t {
  kNative,   // what it does by itself
  kNothing,  // nothing
  kEdit,     // the edit of the answer instead
};

// The places of the children in calls and answers: the eight entries in the order of their TabIndex, then the
// labels.
inline constexpr std::int32_t kEntries = 8;
inline constexpr std::int32_t kSurface = 8;  // as what has the focus
inline constexpr std::int32_t kNowhere = -1;

// What an entry of the page holds.
struct Held {
  std::int32_t child = kNowhere;
  std::u16string_view text;
  std::int32_t selStart = 0, selLength = 0;
};

class WebField {
 public:
  WebField(std::shared_ptr<Page> page, std::int32_t number, std::string name = "field");

  kit::FieldModel& Model() { return model_; }
  std::int32_t Number() const { return number_; }

  // A new life as freshly placed.
  void Create();
  // The model has begun a new life: the page knows nothing of it yet.
  void Register();

  // Takes over what an entry holds. Raises nothing.
  void HandOver(const Held& held);

  // A key goes down in an entry. Either `vk` names the key, or `character` is what it types and the keyboard
  // layout tells the key; `shift` is 1 Shift, 2 Ctrl, 4 Alt.
  void KeyDown(std::int32_t child, std::int16_t vk, std::int16_t shift, char16_t character);
  void KeyUp(std::int32_t child, std::int16_t vk, std::int16_t shift, char16_t character);
  // Text without a key is about to be inserted at the selection.
  void Insert(std::int32_t child, std::u16string_view text);
  // Ctrl+V, with what the clipboard holds.
  void Paste(std::int32_t child, std::u16string_view clipboard);
  // Ctrl+X in the masked box.
  void Cut(std::int32_t child);
  // The entry has done what it was left to do: what waits in the queue may go on.
  void Go();

  void Focus(std::int32_t child);
  void Pick(std::int16_t entry);
  void DropDown(bool open);
  void Size(float width, float height);

  // While it lives, nobody hears a message of the field.
  class Hush {
   public:
    explicit Hush(WebField& field) : dialogs_(field.dialogs_) { dialogs_.quiet = true; }
    ~Hush() { dialogs_.quiet = false; }
    Hush(const Hush&) = delete;
    Hush& operator=(const Hush&) = delete;

   private:
    PageDialogs& dialogs_;
  };
  // Reads Text without a word to anybody: no message, no move of the focus. For a value that a program has
  // written.
  void CheckQuietly();

  // What the entry has to do, with the edit.
  void TellVerdict(Answer& answer);
  // What is new in field and children; everything the first time.
  void TellField(Answer& answer);

 private:
  kit::InputModel& Entry(std::int32_t child);
  std::int16_t KeyOf(char16_t character, std::int16_t& shift) const;
  void Judge(kit::InputModel& child, std::int16_t vk, std::int16_t shift, char16_t character);
  void JudgeCharacter(kit::InputModel& child, char16_t character);
  void Replace(kit::InputModel& child, std::u16string_view text);
  void TellNews(Answer& answer);

  std::shared_ptr<Page> page_;
  std::int32_t number_;
  PageDialogs dialogs_;
  kit::FieldModel model_;
  std::u16string value_;  // as the page knows it
  bool told_ = false;     // of this life
  bool known_ = false;    // of an earlier one

  Verdict verdict_ = Verdict::kNative;
  bool waiting_ = false;  // the queue waits until the entry has acted
  kit::TextEdit edit_;
};

}  // namespace gabarito::web

#endif  // HOSTS_WEB_WEB_FIELD_H

// The stage of a page: what a person does is noted, and carried out as real input of the browser before the
// next line.
#ifndef HOSTS_WEB_SCRIPT_WEB_STAGE_H
#define HOSTS_WEB_SCRIPT_WEB_STAGE_H

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "hosts/web/page.h"
#include "hosts/web/web_field.h"
#include "script/stage.h"

namespace gabarito::web {

class WebStage final : public script::Stage {
 public:
  WebStage();

  std::string_view Name() const override { return "web"; }
  kit::ScriptedServices& Services() override { return services_; }
  kit::FieldModel& Field() override { return field_->Model(); }
  kit::Focusable& Before() override { return page_->Place(kBefore); }
  kit::Focusable& After() override { return page_->Place(kAfter); }
  void Apply() override;

  void Type(std::u16string_view text) override;
  void Press(std::int16_t vk, std::int16_t shift) override;
  void Paste(std::u16string_view text) override;
  bool Select(std::int32_t start, std::int32_t length) override;
  void Run() override { page_->Run(); }

  // What is to be done before the next line, as a JSON array; it is then forgotten.
  std::string TakeRequests();

  const std::shared_ptr<Page>& ItsPage() const { return page_; }
  const std::shared_ptr<WebField>& ItsField() const { return field_; }

 private:
  static constexpr std::int32_t kBefore = 1, kAfter = 2;

  kit::ScriptedServices services_;
  std::shared_ptr<Page> page_;
  std::shared_ptr<WebField> field_;
  std::shared_ptr<kit::FieldParts> told_;
  nlohmann::ordered_json requests_ = nlohmann::ordered_json::array();
};

}  // namespace gabarito::web

#endif  // HOSTS_WEB_SCRIPT_WEB_STAGE_H

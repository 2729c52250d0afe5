#include "hosts/qt/metric.h"

#include <QtGui/QFontMetricsF>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <algorithm>
#include <cmath>

#include "hosts/qt/strings.h"

namespace gabarito::qt {
namespace {

constexpr double kTwipsAPixel = 15;
// What QLineEdit leaves free on each side of its text, beside the style's frame, and the caret behind it.
constexpr int kLineMargin = 2, kCaret = 1;

int LineEditHeight(const QWidget& widget, const QFontMetrics& metrics) {
  QStyleOptionFrame option;
  option.initFrom(&widget);
  option.lineWidth = widget.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &widget);
  const QSize contents(0, std::max(metrics.height(), 14) + 2);
  return widget.style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, nullptr).height();
}

int ComboHeight(const QWidget& widget, const QFontMetrics& metrics) {
  QStyleOptionComboBox option;
  option.initFrom(&widget);
  option.editable = true;
  const QSize contents(0, std::max(metrics.height(), 14) + 2);
  return widget.style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, nullptr).height();
}

}  // namespace

QFont ToQt(const StdFont& font) {
  QFont made(ToQString(font.Name));
  if (font.Size > 0) made.setPointSizeF(font.Size);
  made.setBold(font.Bold);
  made.setItalic(font.Italic);
  return made;
}

StdFont FromQt(const QFont& font) {
  // A font given in pixels has no size in points.
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * 72.0 / 96.0;
  return {.Name = font.family().toStdU16String(),
          .Size = static_cast<float>(points),
          .Bold = font.bold(),
          .Italic = font.italic()};
}

void WidgetMetric::Renew() { measures_.style = nullptr; }

WidgetMetric::Measures WidgetMetric::Measured(const QWidget& widget) {
  const QFontMetrics metrics(widget.font());
  Measures made{.font = widget.font(), .style = widget.style()};
  made.lineHeight = std::max(LineEditHeight(widget, metrics), ComboHeight(widget, metrics));
  const int frame = made.style->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, nullptr);
  const int around = 2 * (frame + kLineMargin) + kCaret;
  const int digit = metrics.horizontalAdvance(u'0');
  // The tightest boxes of the design: two digits in 310 twips, four in 510.
  made.across = std::max({1 / kTwipsAPixel, (2 * digit + around) / 310.0, (4 * digit + around) / 510.0});
  return made;
}

const WidgetMetric::Measures& WidgetMetric::Now() const {
  if (widget_ == nullptr || (measures_.style == widget_->style() && measures_.font == widget_->font())) {
    return measures_;
  }
  // Mostly all fields of a program look alike.
  static thread_local Measures latest;
  if (latest.style != widget_->style() || latest.font != widget_->font() || measures_.style == latest.style) {
    latest = Measured(*widget_);
  }
  measures_ = latest;
  return measures_;
}

float WidgetMetric::TextWidth(std::u16string_view text, const StdFont& font) const {
  if (fixed_ != nullptr) return fixed_->TextWidth(text, font);
  const Measures& now = Now();
  const QFont shown = FromQt(now.font) == font ? now.font : ToQt(font);
  const double pixels = QFontMetricsF(shown).horizontalAdvance(ToQString(text));
  return static_cast<float>(std::ceil(pixels) / now.across);
}

float WidgetMetric::LineHeight(const StdFont& font) const {
  if (fixed_ != nullptr) return fixed_->LineHeight(font);
  return static_cast<float>(Now().lineHeight * kTwipsAPixel);
}

int WidgetMetric::PixelsAcross(float twips) const {
  return static_cast<int>(std::lround(twips * (fixed_ != nullptr ? 1 / kTwipsAPixel : Now().across)));
}

int WidgetMetric::PixelsDown(float twips) const {
  return static_cast<int>(std::lround(twips / kTwipsAPixel));
}

float WidgetMetric::TwipsAcross(int pixels) const {
  return static_cast<float>(pixels / (fixed_ != nullptr ? 1 / kTwipsAPixel : Now().across));
}

float WidgetMetric::TwipsDown(int pixels) const { return static_cast<float>(pixels * kTwipsAPixel); }

QRect WidgetMetric::ToPixels(const kit::Geometry& geometry) const {
  const QPoint from(PixelsAcross(geometry.left), PixelsDown(geometry.top));
  const QPoint to(PixelsAcross(geometry.left + geometry.width), PixelsDown(geometry.top + geometry.height));
  return QRect(from, QSize(std::max(to.x() - from.x(), 0), std::max(to.y() - from.y(), 0)));
}

}  // namespace gabarito::qt

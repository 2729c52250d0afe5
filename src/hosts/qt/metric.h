// Twips and pixels: how large a text is, and how the field's measures become those of the screen.
#ifndef HOSTS_QT_METRIC_H
#define HOSTS_QT_METRIC_H

#include <QtCore/QRect>
#include <QtGui/QFont>
#include <QtWidgets/QWidget>

#include "hosts/kit/design.h"
#include "hosts/kit/font_metric.h"

namespace gabarito::qt {

QFont ToQt(const StdFont& font);
StdFont FromQt(const QFont& font);

// The measures of one widget in its present font and style. The widths of the boxes are constants of the
// field, made for one small font, so a twip is worth more pixels across in a larger one, and two digits
// always fit in a day.
class WidgetMetric final : public kit::FontMetric {
 public:
  explicit WidgetMetric(const QWidget& widget) : widget_(&widget) {}

  // The fixed metric of contract runs instead, at 15 twips a pixel.
  void Fix(const kit::FontMetric& metric) { fixed_ = &metric; }
  // The widget is about to go: what still runs gets the last measures.
  void Forget() { widget_ = nullptr; }
  // The font or the style is another one.
  void Renew();

  float TextWidth(std::u16string_view text, const StdFont& font) const override;
  float LineHeight(const StdFont& font) const override;

  int PixelsAcross(float twips) const;
  int PixelsDown(float twips) const;
  float TwipsAcross(int pixels) const;
  float TwipsDown(int pixels) const;
  // Edges are rounded, not lengths, so that neighbours keep touching.
  QRect ToPixels(const kit::Geometry& geometry) const;

 private:
  struct Measures {
    QFont font;
    const QStyle* style = nullptr;
    int lineHeight = 0;  // pixels
    double across = 0;   // pixels of a twip
  };
  const Measures& Now() const;
  static Measures Measured(const QWidget& widget);

  const QWidget* widget_;
  const kit::FontMetric* fixed_ = nullptr;
  mutable Measures measures_;
};

}  // namespace gabarito::qt

#endif  // HOSTS_QT_METRIC_H

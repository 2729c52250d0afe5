#include "hosts/qt/gabarito_field.h"

#include <QtCore/QDebug>
#include <QtCore/QEvent>

#include "hosts/qt/accessible.h"
#include "hosts/qt/field_bridge.h"

using gabarito::Variant;
using gabarito::qt::FieldBridge;
using gabarito::qt::ToQString;
using gabarito::qt::ViewOf;

static_assert(int{GabaritoField::gbNenhuma} == gabarito::gbNenhuma);
static_assert(int{GabaritoField::gbEnderecoEmail} == gabarito::gbEnderecoEmail);

GabaritoField::GabaritoField(QWidget* parent) : GabaritoField(nullptr, parent) {}

GabaritoField::GabaritoField(const gabarito::kit::Services* services, QWidget* parent) : QWidget(parent) {
  gabarito::qt::InstallAccessibility();
  setFocusPolicy(Qt::ClickFocus);  // its boxes are the tab stops
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  bridge_ = std::make_unique<FieldBridge>(*this, services);
  if (services == nullptr) bridge_->Begin();
}

GabaritoField::~GabaritoField() = default;

// --- The value
// ----------------------------------------------------------------------------------------------------

QString GabaritoField::text() const {
  bridge_->HandOverNow();
  return bridge_->Looked();
}

void GabaritoField::setText(const QString& text) {
  bridge_->Form().HideNote();
  bridge_->Change([&](gabarito::Gabarito& field) { field.Text(ViewOf(text)); });
}

bool GabaritoField::check() { return bridge_->Check(); }

// --- Properties
// ---------------------------------------------------------------------------------------------------

GabaritoField::Mask GabaritoField::mask() const { return static_cast<Mask>((*bridge_->Model()).Mask()); }

void GabaritoField::setMask(Mask mask) {
  bridge_->Form().HideNote();
  bridge_->Change([&](gabarito::Gabarito& field) { field.Mask(mask); });
}

QString GabaritoField::maskText() const { return ToQString((*bridge_->Model()).MaskText()); }

void GabaritoField::setMaskText(const QString& pattern) {
  bridge_->Change([&](gabarito::Gabarito& field) { field.MaskText(ViewOf(pattern)); });
}

int GabaritoField::maxLength() const { return (*bridge_->Model()).MaxLength(); }

void GabaritoField::setMaxLength(int length) {
  const int kept = qBound(-32767, length, 32767);
  bridge_->Change([&](gabarito::Gabarito& field) { field.MaxLength(static_cast<std::int16_t>(kept)); });
}

QStringList GabaritoField::comboItens() const { return bridge_->Words(); }

void GabaritoField::setComboItens(const QStringList& words) { bridge_->SetWords(words); }

int GabaritoField::comboListCount() const { return (*bridge_->Model()).ComboListCount(); }

int GabaritoField::comboListIndex() const { return (*bridge_->Model()).ComboListIndex(); }

void GabaritoField::setComboListIndex(int index) {
  if (index < -1 || index >= comboListCount()) return;
  bridge_->Change([&](gabarito::Gabarito& field) { field.ComboListIndex(static_cast<std::int16_t>(index)); });
}

GabaritoField::Appearance GabaritoField::appearance() const {
  return (*bridge_->Model()).Appearance() == ThreeD ? ThreeD : Flat;
}

void GabaritoField::setAppearance(Appearance look) {
  bridge_->Change([&](gabarito::Gabarito& field) { field.Appearance(look); });
}

bool GabaritoField::usarFundoPastel() const { return (*bridge_->Model()).UsarFundoPastel(); }

void GabaritoField::setUsarFundoPastel(bool on) {
  bridge_->Change([&](gabarito::Gabarito& field) { field.UsarFundoPastel(on); });
}

QColor GabaritoField::backColor() const {
  const gabarito::Color color = (*bridge_->Model()).BackColor();
  if (gabarito::qt::IsSystemColor(color)) return palette().color(QPalette::Base);
  return gabarito::qt::ToQColor(color);
}

void GabaritoField::setBackColor(const QColor& color) {
  if (!color.isValid()) return resetBackColor();
  const gabarito::Color own = gabarito::qt::FromQColor(color);
  bridge_->Change([&](gabarito::Gabarito& field) { field.BackColor(own); });
}

void GabaritoField::resetBackColor() {
  bridge_->Change([](gabarito::Gabarito& field) { field.BackColor(gabarito::kWindowBackground); });
}

bool GabaritoField::preencherDatasInvalidasComDataDeHoje() const {
  return (*bridge_->Model()).PreencherDatasInvalidasComDataDeHoje();
}

void GabaritoField::setPreencherDatasInvalidasComDataDeHoje(bool on) {
  bridge_->Change([&](gabarito::Gabarito& field) { field.PreencherDatasInvalidasComDataDeHoje(on); });
}

bool GabaritoField::trataEnterComoTab() const { return (*bridge_->Model()).TrataEnterComoTab(); }

void GabaritoField::setTrataEnterComoTab(bool on) {
  bridge_->Change([&](gabarito::Gabarito& field) { field.TrataEnterComoTab(on); });
}

bool GabaritoField::cnpjAlfanumerico() const { return (*bridge_->Model()).CNPJAlfanumerico(); }

void GabaritoField::setCnpjAlfanumerico(bool on) {
  bridge_->Change([&](gabarito::Gabarito& field) { field.CNPJAlfanumerico(on); });
}

// --- Messages and keys
// --------------------------------------------------------------------------------------------

GabaritoField::MessageMode GabaritoField::messageMode() const { return bridge_->Dialogs().mode; }

void GabaritoField::setMessageMode(MessageMode mode) {
  bridge_->Dialogs().HideNote();
  bridge_->Dialogs().mode = mode;
}

void GabaritoField::setMessageHandler(MessageHandler handler) {
  bridge_->Dialogs().handler = std::move(handler);
}

void GabaritoField::setKeyHandler(KeyHandler handler) { bridge_->keyHandler = std::move(handler); }

void GabaritoField::apagaCampos() {
  bridge_->Form().HideNote();
  bridge_->Change([](gabarito::Gabarito& field) { field.ApagaCampos(); });
}

void GabaritoField::sobre() {
  bridge_->Change([](gabarito::Gabarito& field) { field.Sobre(); });
}

// --- Of every widget
// ----------------------------------------------------------------------------------------------

QSize GabaritoField::sizeHint() const { return bridge_->SizeHint(false); }

QSize GabaritoField::minimumSizeHint() const { return bridge_->SizeHint(true); }

bool GabaritoField::event(QEvent* event) {
  if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::StyleChange) {
    const bool done = QWidget::event(event);
    if (bridge_ != nullptr) bridge_->StyleChanged();
    return done;
  }
  // Also on its way to another parent. The note stands on the window, which stays.
  if (event->type() == QEvent::Hide && !event->spontaneous() && bridge_ != nullptr) {
    bridge_->Form().HideNote();
  }
  return QWidget::event(event);
}

void GabaritoField::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (bridge_ == nullptr) return;
  if (event->type() == QEvent::FontChange) bridge_->FontChanged();
  if (event->type() == QEvent::EnabledChange) bridge_->EnabledChanged();
  if (event->type() == QEvent::PaletteChange) bridge_->PaletteChanged();
}

void GabaritoField::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  bridge_->Resized();
}

void GabaritoField::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  bridge_->Shown();
}

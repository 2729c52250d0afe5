// One input field that becomes 23 different fields by one property, mask: CPF, CNPJ, dates, times, money,
// CEP, telephone, states, municipalities, word lists, a mask of your own.
//
//   auto *cpf = new GabaritoField;
//   cpf->setMask(GabaritoField::gbCPF);
//   layout->addWidget(cpf);
//   ...
//   if (cpf->check()) store(cpf->text());
//
// It is an ordinary widget. Its boxes are real QLineEdits, a QComboBox and QLabels, made when the field is
// first shown: undo, input methods, drag and drop, context menus, accessibility, style sheets, palettes and
// fonts are Qt's own. What it lets through, how it jumps between its boxes and what it answers is the same as
// on every other host.
//
// All members belong to the thread of the user interface. None throws: what the field refuses is told by
// qWarning and changes nothing. A field may be deleted at any time, also from a slot of its own signals and
// while a message of its own is open; deleteLater is the better manners.
#ifndef GABARITO_QT_GABARITO_FIELD_H
#define GABARITO_QT_GABARITO_FIELD_H

#include <QtCore/QStringList>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>
#include <functional>
#include <memory>

namespace gabarito::kit {
struct Services;
}
namespace gabarito::qt {
class FieldBridge;
}

class GabaritoField : public QWidget {
  Q_OBJECT
  // maskText stands before mask, since it sets it, and text last, since it is taken by mask: a .ui file sets
  // them in this order.
  Q_PROPERTY(Appearance appearance READ appearance WRITE setAppearance)
  Q_PROPERTY(QString maskText READ maskText WRITE setMaskText)
  Q_PROPERTY(QStringList comboItens READ comboItens WRITE setComboItens)
  Q_PROPERTY(Mask mask READ mask WRITE setMask)
  Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength)
  Q_PROPERTY(bool usarFundoPastel READ usarFundoPastel WRITE setUsarFundoPastel)
  Q_PROPERTY(bool trataEnterComoTab READ trataEnterComoTab WRITE setTrataEnterComoTab)
  Q_PROPERTY(bool cnpjAlfanumerico READ cnpjAlfanumerico WRITE setCnpjAlfanumerico)
  Q_PROPERTY(bool preencherDatasInvalidasComDataDeHoje READ preencherDatasInvalidasComDataDeHoje WRITE
                 setPreencherDatasInvalidasComDataDeHoje)
  Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor RESET resetBackColor)
  Q_PROPERTY(MessageMode messageMode READ messageMode WRITE setMessageMode)
  Q_PROPERTY(int comboListCount READ comboListCount STORED false)
  Q_PROPERTY(int comboListIndex READ comboListIndex WRITE setComboListIndex STORED false)
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)

 public:
  // The kind of the field. Any other number is kept and shows a plain box.
  enum Mask : int {
    gbNenhuma = 100,
    gbLetra = 110,
    gbAlfanumerico = 120,
    gbData = 130,
    gbDataAtual = 131,
    gbMesAno = 140,
    gbHora = 150,
    gbInteiro = 160,
    gbReal = 170,
    gbMoeda = 180,
    gbCEP = 190,
    gbTelefone = 200,
    gbDefUsr = 210,
    gbVersao = 220,
    gbListaNoCombo = 230,
    gbCPF = 240,
    gbCNPJ = 250,
    gbCidadeEstado = 260,
    gbEstado = 261,
    gbCidadeEstadoPopulado = 262,
    gbCartaoCredito = 270,
    gbIntervaloNumerico = 280,
    gbEnderecoEmail = 290,
  };
  Q_ENUM(Mask)

  enum Appearance : int { Flat = 0, ThreeD = 1 };
  Q_ENUM(Appearance)

  // Where messages go when no function is set for them.
  enum MessageMode {
    MessageBox,  // a modal QMessageBox whose parent is the window
    // A note under the field that waits for nobody and goes with the next key, value or check, when the field
    // is left, and with the field; a question is answered with its default button.
    InPlace,
  };
  Q_ENUM(MessageMode)

  explicit GabaritoField(QWidget* parent = nullptr);
  ~GabaritoField() override;

  // --- The value
  // -------------------------------------------------------------------------------------------------

  // Looks: what the field would give if it were left now, in the form that docs/masks.md tells; empty where
  // it would be refused. Shows no message, moves no focus and rewrites no box, so that property sheets, item
  // delegates and QDataWidgetMapper may read it at any time.
  QString text() const;
  // Distributes `text` over the boxes by mask without judging it. What fails on the way is told in a message.
  void setText(const QString& text);

  // Checks: what leaving the field does. Normalises the boxes, may show a message and give the focus back to
  // the box at fault. True when nothing was refused; text() then is the value.
  bool check();

  // --- Properties
  // ------------------------------------------------------------------------------------------------ Setting
  // appearance, mask, maskText, maxLength or usarFundoPastel works the layout out anew, which empties the
  // boxes of a date and of month and year.

  Mask mask() const;
  void setMask(Mask mask);

  // The pattern of gbDefUsr; setting it sets mask too. A pattern that is refused leaves the old one in place.
  QString maskText() const;
  void setMaskText(const QString& pattern);

  // Longest text of the kinds with one box, 0 to 32,767; 0 is no limit. A negative value counts as its
  // absolute value. Reads 64 under gbDefUsr.
  int maxLength() const;
  void setMaxLength(int length);

  // The words of gbListaNoCombo. May be set before or after mask.
  QStringList comboItens() const;
  void setComboItens(const QStringList& words);
  // Entries of the list, and the selected one, -1 for none. An index outside the list changes nothing.
  int comboListCount() const;
  int comboListIndex() const;
  void setComboListIndex(int index);

  Appearance appearance() const;
  void setAppearance(Appearance look);
  // Colour the box with the focus pastel.
  bool usarFundoPastel() const;
  void setUsarFundoPastel(bool on);
  // Of the boxes until the focus next comes or goes, and of the list for good. An invalid colour resets it.
  QColor backColor() const;
  void setBackColor(const QColor& color);
  void resetBackColor();

  // After the message on a bad date under gbData: fill in today instead of emptying the boxes.
  bool preencherDatasInvalidasComDataDeHoje() const;
  void setPreencherDatasInvalidasComDataDeHoje(bool on);
  // Enter moves on as Tab does.
  bool trataEnterComoTab() const;
  void setTrataEnterComoTab(bool on);
  // gbCNPJ takes letters too, in the first twelve places of a number.
  bool cnpjAlfanumerico() const;
  void setCnpjAlfanumerico(bool on);

  // --- Messages and keys
  // -----------------------------------------------------------------------------------------

  MessageMode messageMode() const;
  void setMessageMode(MessageMode mode);

  struct Message {
    QString title, text;
    bool question = false;  // Yes or No; every other message has OK alone
    bool refusal = false;   // what was entered is refused
  };
  // The program's own way to show a message; an empty function goes back to messageMode. True answers Yes.
  using MessageHandler = std::function<bool(const Message& message)>;
  void setMessageHandler(MessageHandler handler);

  // Called with what keyUp tells before it is raised; what it returns is the key code that the field goes on
  // with.
  using KeyHandler = std::function<int(int keyCode, int shift)>;
  void setKeyHandler(KeyHandler handler);

  // --- Of every widget
  // -------------------------------------------------------------------------------------------

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public slots:
  // Empties the boxes, the list and the words of comboItens.
  void apagaCampos();
  // Shows the about box.
  void sobre();

 signals:
  // The value that text() gives is another one, whether by typing, by a check or by setText.
  void textChanged(const QString& text);
  // The focus has left the field and nothing was refused.
  void editingFinished();
  // A key has gone down in a box or come up in the list; also 13 and 0 after an Enter that moved on and after
  // a jump. `shift` is 1 Shift, 2 Ctrl, 4 Alt. To change the key code see setKeyHandler.
  void keyUp(int keyCode, int shift);
  // What was entered is refused: raised before the message is shown.
  void refused(const QString& title, const QString& message);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  friend class gabarito::qt::FieldBridge;
  GabaritoField(const gabarito::kit::Services* services, QWidget* parent);

  std::unique_ptr<gabarito::qt::FieldBridge> bridge_;
};

#endif  // GABARITO_QT_GABARITO_FIELD_H

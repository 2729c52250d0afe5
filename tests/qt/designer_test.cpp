// The field in Designer: its plugin loads, Designer's own editor shows its sheet, changes and saves a form
// with it, and the saved form gives the same field again. This program links no field of its own: everything
// goes through the plugin.
#include <gtest/gtest.h>

#include <QtCore/QBuffer>
#include <QtCore/QMetaEnum>
#include <QtCore/QPluginLoader>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QtGui/QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QWidget>
#include <memory>

namespace {

const QString kPlugins = QStringLiteral(GABARITO_PLUGINS);

struct Setting {
  const char* name;
  QVariant value;
};

bool Same(const QVariant& read, const QVariant& value) {
  return value.typeId() == QMetaType::Int ? read.toInt() == value.toInt() : read == value;  // of an enum too
}

class Designer : public testing::Test {
 protected:
  void SetUp() override {
    loader.setFileName(kPlugins + "/designer/gabarito_designer.so");
    plugin = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
    ASSERT_NE(plugin, nullptr) << loader.errorString().toStdString();
  }

  // What a person sets in the property sheet of the widget with this name.
  static void Set(QDesignerFormEditorInterface& editor, QWidget* widget, const Setting& setting) {
    auto* const sheet = qt_extension<QDesignerPropertySheetExtension*>(editor.extensionManager(), widget);
    ASSERT_NE(sheet, nullptr);
    const int index = sheet->indexOf(QString::fromLatin1(setting.name));
    ASSERT_GE(index, 0) << setting.name;
    sheet->setProperty(index, setting.value);
    sheet->setChanged(index, true);
  }

  QPluginLoader loader;
  QDesignerCustomWidgetInterface* plugin = nullptr;
};

TEST_F(Designer, TheWidgetBoxGetsItsNameItsPictureAndItsHeader) {
  EXPECT_EQ(plugin->name(), "GabaritoField");
  EXPECT_EQ(plugin->includeFile(), "gabarito/qt/gabarito_field.h");
  EXPECT_FALSE(plugin->icon().isNull());
  EXPECT_FALSE(plugin->isContainer());
}

TEST_F(Designer, TheSheetShowsTheKindsByTheirNames) {
  const std::unique_ptr<QWidget> field(plugin->createWidget(nullptr));
  const QMetaObject* const meta = field->metaObject();
  const QMetaProperty mask = meta->property(meta->indexOfProperty("mask"));
  ASSERT_TRUE(mask.isEnumType());
  EXPECT_STREQ(mask.enumerator().valueToKey(240), "gbCPF");
  EXPECT_TRUE(mask.isDesignable());
}

TEST_F(Designer, AFormIsChangedSavedAndLoadedAgainWithTheSameField) {
  const Setting settings[] = {
      {"maskText", "##/##"},
      {"comboItens", QStringList({"Azul", "Verde"})},
      {"mask", 230},
      {"maxLength", 12},
      {"trataEnterComoTab", true},
      {"cnpjAlfanumerico", true},
      {"usarFundoPastel", false},
      {"text", "Verde"},
  };
  QString saved;
  {
    const std::unique_ptr<QDesignerFormEditorInterface> editor(
        QDesignerComponents::createFormEditor(nullptr));
    QDesignerIntegration integration(editor.get());
    QDesignerComponents::initializePlugins(editor.get());
    QDesignerFormWindowInterface* const form = editor->formWindowManager()->createFormWindow();
    ASSERT_TRUE(
        form->setContents("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
                          "<widget class=\"GabaritoField\" name=\"campo\"/></widget></ui>"));
    auto* const placed = form->mainContainer()->findChild<QWidget*>("campo");
    ASSERT_NE(placed, nullptr);
    ASSERT_STREQ(placed->metaObject()->className(), "GabaritoField") << "the plugin made it";
    for (const Setting& setting : settings) Set(*editor, placed, setting);
    saved = form->contents();
  }
  EXPECT_TRUE(saved.contains("GabaritoField::gbListaNoCombo")) << saved.toStdString();
  EXPECT_TRUE(saved.contains("gabarito/qt/gabarito_field.h"));

  QUiLoader ui;
  QByteArray bytes = saved.toUtf8();
  QBuffer in(&bytes);
  ASSERT_TRUE(in.open(QIODevice::ReadOnly));
  const std::unique_ptr<QWidget> loaded(ui.load(&in));
  ASSERT_NE(loaded, nullptr) << ui.errorString().toStdString();
  const auto* const again = loaded->findChild<QWidget*>("campo");
  ASSERT_NE(again, nullptr);
  EXPECT_STREQ(again->metaObject()->className(), "GabaritoField");
  for (const Setting& setting : settings) {
    EXPECT_TRUE(Same(again->property(setting.name), setting.value)) << setting.name << '\n'
                                                                    << saved.toStdString();
  }
}

}  // namespace

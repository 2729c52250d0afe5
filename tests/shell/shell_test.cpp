#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <set>
#include <sstream>
#include <string>

#include "gabarito/control/versao.h"
#include "gabarito/platform/erro.h"
#include "shell/host_runtime.h"
#include "shell/resources.h"

namespace gabarito {
namespace {

static_assert(App::Major == GABARITO_VERSION_MAJOR && App::Minor == GABARITO_VERSION_MINOR &&
              App::Revision == GABARITO_VERSION_PATCH);

struct CountingRuntime final : HostRuntime {
  HRESULT RegisterServer() noexcept override { return 11; }
  HRESULT UnregisterServer() noexcept override { return 12; }
  HRESULT GetClassObject(const void* clsid, const void* iid, void** object) noexcept override {
    *object = clsid == iid ? this : nullptr;
    return 13;
  }
  HRESULT CanUnloadNow() noexcept override { return kFalse; }
};

struct Shell : testing::Test {
  void* library = dlopen(GABARITO_SHELL, RTLD_NOW);
  ~Shell() override {
    InstallHostRuntime(nullptr);
    if (library != nullptr) dlclose(library);
  }
  HRESULT Call(const char* entry) {
    const auto function = reinterpret_cast<HRESULT (*)()>(dlsym(library, entry));
    return function == nullptr ? -1 : function();
  }
  HRESULT GetClassObject(const void* clsid, const void* iid, void** object) {
    return reinterpret_cast<decltype(&DllGetClassObject)>(dlsym(library, "DllGetClassObject"))(clsid, iid,
                                                                                               object);
  }
};

TEST_F(Shell, HandsOnToTheRuntimeThatIsInstalled) {
  ASSERT_NE(library, nullptr) << dlerror();
  CountingRuntime runtime;
  EXPECT_EQ(InstallHostRuntime(&runtime), nullptr);
  EXPECT_EQ(Call("DllRegisterServer"), 11);
  EXPECT_EQ(Call("DllUnregisterServer"), 12);
  EXPECT_EQ(Call("DllCanUnloadNow"), kFalse);
  const char id[16] = {};
  void* object = nullptr;
  EXPECT_EQ(GetClassObject(id, id, &object), 13);
  EXPECT_EQ(object, &runtime);
  EXPECT_EQ(InstallHostRuntime(nullptr), &runtime);
}

TEST_F(Shell, FailsWithoutARuntime) {
  ASSERT_NE(library, nullptr) << dlerror();
  for (const char* entry : {"DllRegisterServer", "DllUnregisterServer", "DllCanUnloadNow"}) {
    EXPECT_EQ(Call(entry), kUnexpected) << entry;
  }
  void* object = this;
  EXPECT_EQ(GetClassObject(this, this, &object), kUnexpected);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(GetClassObject(this, this, nullptr), kUnexpected);
}

TEST_F(Shell, ExportsTheFourEntryPointsAlone) {
  std::FILE* const nm = popen("nm -D --defined-only " GABARITO_SHELL, "r");
  ASSERT_NE(nm, nullptr);
  std::string output;
  for (int c; (c = std::fgetc(nm)) != EOF;) output += static_cast<char>(c);
  ASSERT_EQ(pclose(nm), 0);
  std::set<std::string> names;
  std::istringstream lines(output);
  for (std::string address, type, name; lines >> address >> type >> name;) names.insert(name);
#ifdef __clang__
  // Clang's sanitizers add marks of their own and the names of the types that they check.
  std::erase_if(names, [](const std::string& name) {
    return name.find("sancov") != std::string::npos || name.starts_with("_ZTI") || name.starts_with("_ZTS");
  });
#endif
  EXPECT_EQ(names, (std::set<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer",
                                          "DllUnregisterServer"}));
}

std::uint32_t Number(std::span<const std::uint8_t> file, std::size_t at) {
  return file[at] | file[at + 1] << 8 | file[at + 2] << 16 | std::uint32_t{file[at + 3]} << 24;
}

static_assert(kRegistrationFlags == 0x00020191);

TEST(Resources, TheToolboxPictureIsABitmapFile) {
  const auto file = LoadResPicture(kToolboxPicture);
  ASSERT_EQ(file.size(), 54u + 16 * 15 * 3);
  EXPECT_EQ(std::memcmp(file.data(), "BM", 2), 0);
  EXPECT_EQ(Number(file, 2), file.size());
  EXPECT_EQ(Number(file, 10), 54u);
  EXPECT_EQ(Number(file, 14), 40u);
  EXPECT_EQ(Number(file, 18), 16u);
  EXPECT_EQ(Number(file, 22), 15u);
  EXPECT_EQ(Number(file, 26), 24u << 16 | 1);  // planes and bits a pixel
  EXPECT_EQ(Number(file, 30), 0u);             // not compressed
  EXPECT_EQ(file[54], 0xC0);                   // the corner at the bottom left
  EXPECT_THROW(LoadResPicture(30001), Erro);
}

}  // namespace
}  // namespace gabarito

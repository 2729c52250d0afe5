// `gabarito batch`: lines in, columns out.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <string>
#include <system_error>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/properties.h"

namespace gabarito::cli {
namespace {

// A file without a name, gone at the end.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& content = {}) : file_(std::tmpfile()) {
    std::fwrite(content.data(), 1, content.size(), file_);
    std::rewind(file_);
  }
  ~TemporaryFile() { std::fclose(file_); }
  TemporaryFile(const TemporaryFile&) = delete;

  int Descriptor() const { return fileno(file_); }
  std::string Content() {
    std::string content(static_cast<std::size_t>(lseek(Descriptor(), 0, SEEK_END)), '\0');
    EXPECT_EQ(pread(Descriptor(), content.data(), content.size(), 0), static_cast<ssize_t>(content.size()));
    return content;
  }

 private:
  std::FILE* file_;
};

struct Outcome {
  int status;
  std::string output;
  friend bool operator==(const Outcome&, const Outcome&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Outcome& o) {
    return out << o.status << '\n' << o.output;
  }
};

Outcome Batch(const FieldOptions& field, const std::string& input) {
  TemporaryFile in(input);
  TemporaryFile out;
  const int status = RunBatch({.field = field, .file = ""}, in.Descriptor(), out.Descriptor());
  return {status, out.Content()};
}

struct Row {
  const char* mask;
  std::string input;
  std::string output;
};

TEST(Batch, GivesTheValueOfALineThatPasses) {
  const Row rows[] = {
      {"gbCPF", "", ""},
      {"gbCPF", "11144477735\n", "11144477735\t111.444.777-35\t\n"},
      {"gbCPF", "11144477735\r\n\r\n52998224725",
       "11144477735\t111.444.777-35\t\n\t\t\n52998224725\t529.982.247-25\t\n"},
      {"gbCPF",
       "\xEF\xBB\xBF"
       "11144477735",
       "11144477735\t111.444.777-35\t\n"},
      {"gbCPF", " \t\n", " \\t\t\t\n"},
      {"gbNenhuma", "a\tb\n", "a\\tb\tA\\tB\t\n"},
      {"gbData", "5 de março de 2024\n\n", "5 de março de 2024\t05/03/2024\t\n\t\t\n"},
      {"gbIntervaloNumerico", "1#250\n#\n", "1#250\t0000000001#0000000250\t\n#\t#\t\n"},
      {"190", "01310-100\n01310\n", "01310-100\t01310-100\t\n01310\t01310\t\n"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Batch({row.mask, {}}, row.input), (Outcome{0, row.output})) << row.input;
}

TEST(Batch, TellsWhyALineIsRefusedAndGoesOn) {
  const std::string lost = "\t\tValor não aceito pela máscara.\n";
  const Row rows[] = {
      {"gbCPF", "11144477736\n11144477735\n",
       "11144477736\t\tO CPF informado é inválido.\n11144477735\t111.444.777-35\t\n"},
      {"gbCPF", "x\n", "x" + lost},
      {"gbCPF",
       "\n\xFF"
       "1\xC3\n11144477735",
       "\t\t\n\uFFFD1\uFFFD\t\tlinha 2: não é UTF-8\n11144477735\t111.444.777-35\t\n"},
      {"gbData", "31/02/2024\n", "31/02/2024" + lost},
      {"gbDataAtual", "hoje\n", "hoje" + lost},
      {"gbEstado", "SP\nXX\n", "SP\tSP\t\nXX" + lost},
      {"gbCidadeEstado", "Ana1/SP\n", "Ana1/SP\t\tCaractere inválido.\n"},
      {"gbEnderecoEmail", "a@b.com.br\nana\n",
       "a@b.com.br\ta@b.com.br\t\nana\t\tEste endereço de email não parece ser válido. Deseja utilizá-lo "
       "mesmo assim?\n"},
      {"123", "a\n", "a\t\tErro na propriedade TEXT - máscara não definida! Contacte o autor.\n"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Batch({row.mask, {}}, row.input), (Outcome{1, row.output})) << row.input;
}

TEST(Batch, SetsThePropertiesFirst) {
  EXPECT_EQ(Batch({"gbListaNoCombo", {R"(ComboItens=["São Paulo"])"}}, "SAO PAULO\n").output,
            "SAO PAULO\tSão Paulo\t\n");
  EXPECT_EQ(Batch({"gbDefUsr", {"MaskText=##/##"}}, "12/34\n5\n").output, "12/34\t12/34\t\n5\t5_/\t\n");
  EXPECT_THROW(Batch({"gbCPF", {"Cor=1"}}, ""), UsageError);
  EXPECT_THROW(Batch({"gbCPF", {"MaxLength"}}, ""), UsageError);
  EXPECT_THROW(Batch({"gbCpf", {}}, ""), UsageError);
}

TEST(Batch, TakesLinesLongerThanItsBlocks) {
  const std::string digits(40'000, '1');
  EXPECT_EQ(Batch({"gbCPF", {}}, digits + "\n").output,
            digits + "\t\tErro 6 (Estouro) em Gabarito::Text Máscara: 240\n");
  const std::string letters(1'000'000, 'A');
  EXPECT_EQ(Batch({"gbNenhuma", {}}, letters + "\nB\n" + letters),
            (Outcome{0, letters + "\t" + letters + "\t\nB\tB\t\n" + letters + "\t" + letters + "\t\n"}));
}

TEST(Batch, FailsOnWhatItCannotReadOrWrite) {
  const TemporaryFile file("1\n");
  const auto run = [&](const std::string& name, int in, int out) {
    RunBatch({.field = {"gbCPF", {}}, .file = name}, in, out);
  };
  EXPECT_THROW(run("/nowhere/at/all", 0, file.Descriptor()), std::system_error);
  EXPECT_THROW(run("/", 0, file.Descriptor()), std::system_error);
  EXPECT_THROW(run("", -1, file.Descriptor()), std::system_error);
  EXPECT_THROW(run("", file.Descriptor(), -1), std::system_error);
}

TEST(LineReader, GivesAWholeLineBeforeTheInputEnds) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  ASSERT_EQ(write(ends[1], "one\r\ntw", 7), 7);
  LineReader reader(ends[0], "pipe");
  std::string_view line;
  EXPECT_FALSE(reader.Next(line));
  EXPECT_TRUE(reader.Fill());
  EXPECT_TRUE(reader.Next(line));
  EXPECT_EQ(line, "one");
  EXPECT_FALSE(reader.Next(line));
  close(ends[1]);
  EXPECT_FALSE(reader.Fill());
  EXPECT_TRUE(reader.Rest(line));
  EXPECT_EQ(line, "tw");
  EXPECT_FALSE(reader.Rest(line));
  close(ends[0]);
}

}  // namespace
}  // namespace gabarito::cli

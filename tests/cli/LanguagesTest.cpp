// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What people read is in their language, and what programs read is the same in every one.
#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <sstream>

#include <sys/wait.h>
#include <unistd.h>

#include "Process.h"
#include "cli_commands/CommandLine.h"
#include "foundation/Localizer.h"
#include "foundation/Sentence.h"
#include "support/Catalogue.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* kSamples = NASCOR_SAMPLES;
constexpr std::string_view kMark = "\xE2\x80\xA1";

/// A table and a text of it.
using Key = std::pair<std::string, std::string>;

/// A language that marks the end of each line of its texts, and remembers which it was asked for.
class Marking final : public foundation::Localizer {
 public:
  std::string text(std::string_view table, std::string_view key) const override {
    asked.emplace(table, key);
    std::string text(key);
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += kMark.size() + 1)
      text.insert(at, kMark);
    return text.ends_with('\n') ? text : text.append(kMark);
  }
  foundation::ShortDateForm shortDateForm() const override { return {}; }
  std::string longDateText(const foundation::CivilDay& day) const override {
    return foundation::EnglishLocalizer().longDateText(day).append(kMark);
  }
  char decimalSign() const override { return ','; }
  std::string upperCased(std::string_view text) const override { return std::string(text); }

  mutable std::set<Key> asked;
};

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

std::string contentsOf(std::FILE* file) {
  std::rewind(file);
  std::string contents;
  for (int each = 0; (each = std::fgetc(file)) != EOF;) contents += static_cast<char>(each);
  return contents;
}

/// One run in the language of `localizer`, in a process of its own and a folder. The child calls `atEnd`.
Outcome runIn(const foundation::Localizer& localizer, std::vector<std::string> arguments,
              const std::string& input, const std::string& folder, const std::function<void()>& atEnd) {
  const File in{std::tmpfile(), std::fclose};
  const File out{std::tmpfile(), std::fclose};
  const File err{std::tmpfile(), std::fclose};
  std::fwrite(input.data(), 1, input.size(), in.get());
  std::rewind(in.get());
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(::fileno(in.get()), STDIN_FILENO);
    ::dup2(::fileno(out.get()), STDOUT_FILENO);
    ::dup2(::fileno(err.get()), STDERR_FILENO);
    if (::chdir(folder.c_str()) != 0) ::_exit(127);
    arguments.insert(arguments.begin(), "nascor-cli");
    std::vector<char*> pointers;
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    const int status = cli::runCommandLine(static_cast<int>(pointers.size()), pointers.data(), localizer);
    atEnd();
    ::_exit(status);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
          .out = contentsOf(out.get()),
          .err = contentsOf(err.get())};
}

struct Line {
  std::vector<std::string> arguments;
  std::string input{};
};

std::string shown(const Line& line) {
  std::string text;
  for (const std::string& argument : line.arguments) text += argument + " ";
  return text;
}

/// The texts of a table as the translators have it, each with its translation.
std::map<Key, std::string> textsOf(const std::string& xml) {
  std::map<Key, std::string> texts;
  Key last;
  std::string table;
  const auto unescaped = [](std::string text) {
    for (const auto& [name, sign] : std::vector<std::pair<std::string, const char*>>{{"&quot;", "\""},
                                                                                     {"&apos;", "'"},
                                                                                     {"&#xa0;", "\u00a0"},
                                                                                     {"&lt;", "<"},
                                                                                     {"&gt;", ">"},
                                                                                     {"&amp;", "&"}}) {
      for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos; ++at)
        text.replace(at, name.size(), sign);
    }
    return text;
  };
  for (std::size_t at = 0; (at = xml.find('<', at)) != std::string::npos; ++at) {
    const auto element = [&](const std::string& name) -> std::optional<std::string> {
      if (xml.compare(at, name.size(), name) != 0) return std::nullopt;
      const std::size_t begin = at + name.size();
      return unescaped(xml.substr(begin, xml.find("</", begin) - begin));
    };
    if (const auto name = element("<name>")) table = *name;
    if (const auto source = element("<source>")) texts[last = Key(table, *source)] = "";
    if (const auto translation = element("<translation>")) texts[last] = *translation;
  }
  return texts;
}

class EveryLanguage : public testing::Test {
 protected:
  EveryLanguage() {
    for (const char* name : {"twins.nascor", "no-edd.nascor"})
      std::filesystem::copy_file(std::filesystem::path(kSamples) / name, folder.path(name));
    const std::string twins = contentsOfFile(folder.path("twins.nascor"));
    folder.write("cut.nascor", twins.substr(0, twins.size() / 2));
    folder.write("bad.nascor", "garbage");
    folder.write("empty.nascor", "");
    folder.write("bad.csv", "exam_date,bpd_mm,edd\n2026-13-40,60,x\n2026-11-13,250,\n1\n");
    folder.write("bare.csv", "exam_date,fl_mm\n2026-11-13,30\n");
    folder.write("bad.json", "{");
    std::filesystem::create_directory(folder.path("empty"));
  }

  Outcome in(const foundation::Localizer& localizer, const Line& line) {
    return runIn(localizer, line.arguments, line.input, folder.path(""), [this] { tellAsked(); });
  }
  /// What the marking language was asked for, in all runs so far. A zero byte ends each part.
  void tellAsked() const {
    std::ofstream file(folder.path("asked"), std::ios::binary | std::ios::app);
    for (const auto& [table, key] : marking.asked) file << table << '\0' << key << '\0';
  }
  std::set<Key> asked() const {
    std::set<Key> keys;
    std::istringstream stream(contentsOfFile(folder.path("asked")));
    for (std::string table, key; std::getline(stream, table, '\0') && std::getline(stream, key, '\0');)
      keys.emplace(table, key);
    return keys;
  }

  ScratchFolder folder;
  foundation::EnglishLocalizer english;
  Marking marking;
};

TEST_F(EveryLanguage, hasEachLineOfStandardErrorInATable) {
  const std::string numbers = "xx\n5\n200\n-3\n";
  const std::vector<Line> lines{
      {{}},
      {{"help", "x", "y"}},
      {{"repot"}},
      {{"--nix"}},
      {{"weight", "--nix"}},
      {{"weight"}},
      {{"weight", "x"}},
      {{"weight", "--bpd"}},
      {{"weight", "--bpd", "1", "--bpd", "2"}},
      {{"weight", "--bpd", "x"}},
      {{"weight", "--json=3", "--bpd", "3"}},
      {{"weight", "--bpd", "9", "--hc", "900", "--ac", "-3", "--fl", "0"}},
      {{"weight", "--bpd", "90", "--hc", "200"}},
      {{"crl"}},
      {{"crl", "5", "500"}},
      {{"crl", "-"}, numbers},
      {{"standard", "9"}},
      {{"standard", "0", "--measurement", "q"}},
      {{"standard", "0", "--measurement", "efw"}},
      {{"standard", "0", "--formula", "99"}},
      {{"lookup", "0", "bpd"}},
      {{"lookup", "0", "bpd", "--mean", "1", "--sd", "2"}},
      {{"lookup", "0", "bpd", "--mean", "99"}},
      {{"lookup", "0", "bpd", "--mean", "-"}, numbers},
      {{"reference", "nix", "bpd"}},
      {{"reference", "fmf-2018"}},
      {{"reference", "--week", "2"}},
      {{"reference", "hadlock-1991"}},
      {{"reference", "hadlock-1991", "bpd"}},
      {{"reference", "hadlock-1991", "efw"}},
      {{"reference", "hadlock-1991", "efw", "--week", "20", "--value", "-3"}},
      {{"reference", "hadlock-1991", "efw", "--week", "20", "--centile", "100"}},
      {{"reference", "hadlock-1991", "efw", "--week", "20", "--centile", "-"}, numbers},
      {{"reference", "hadlock-1991", "efw", "--week", "-", "--value", "-"}},
      {{"reference", "hadlock-1991", "efw", "--week", "2", "--value", "3", "--z", "4"}},
      {{"report"}},
      {{"report", "none.nascor", "bad.nascor", "cut.nascor", "empty.nascor", "empty"}},
      {{"report", "-"}, "garbage"},
      {{"rows"}},
      {{"rows", "none.nascor", "bad.nascor", "cut.nascor"}},
      {{"rows", "--columns", "nix", "empty"}},
      {{"rows", "--columns", "exam,", "empty"}},
      {{"rows", "--columns", "exam,exam", "empty"}},
      {{"rows", "--columns", "note", "empty"}},
      {{"rows", "--columns", "edd", "--relative-dates", "empty"}},
      {{"rows", "--standard", "0,0", "empty"}},
      {{"rows", "--standard", "who-2017", "empty"}},
      {{"rows", "--format", "x", "empty"}},
      {{"rows", "--file", "x", "empty"}},
      {{"rows", "--jobs", "0", "empty"}},
      {{"rows", "--null", "empty"}},
      {{"rows", "--tar", "x", "empty"}},
      {{"rows", "--tar", "none.tar"}},
      {{"rows", "--files-from", "none"}},
      {{"rows", "-", "-"}},
      {{"rows", "--time-zone", "Nix/Nox", "empty"}},
      {{"calc"}},
      {{"calc"}, "a,b\n1,2\n"},
      {{"calc"}, "ga,bpd\n1\n"},
      {{"calc"}, "ga,ga\n1,2\n"},
      {{"calc"}, "bpd,bpd_mm\n1,2\n"},
      {{"calc"}, "ga,bpd\n20,4x\n21,\"5\n"},
      {{"calc"}, "ga,bpd\n20,\"4\"x\n"},
      {{"calc"}, "ga,efw_0_g\n1,2\n"},
      {{"calc", "--columns", "nix"}, "ga\n1\n"},
      {{"index"}},
      {{"index", "empty"}},
      {{"index", "none", "--db", "a.db"}},
      {{"index", ".", "--db", "b.db"}},
      {{"index", "empty", "--db", "b.db"}},
      {{"index", ".", "--db", "none/a.db"}},
      {{"due"}},
      {{"due", "--db", "b.db", "--from", "x"}},
      {{"due", "--db", "b.db", "--days", "-1"}},
      {{"due", "--db", "b.db", "--ac-below", "x"}},
      {{"search", "ab", "--db", "b.db"}},
      {{"search", "nascor", "--db", "b.db", "--limit", "0"}},
      {{"check", "bad.nascor", "cut.nascor"}},
      {{"make", "none.json"}},
      {{"make", "-"}, R"({"maternalIDString":3})"},
      {{"make", "-"}, R"({"x":1})"},
      {{"make", "-"}, R"([])"},
      {{"make", "-"}, R"({)"},
      {{"make", "-"}, R"({"gravida":1,"gravida":2})"},
      {{"make", "-"}, R"({"eddISO":"2027-13-40"})"},
      {{"make", "-", "--out", "w.nascor"},
       R"({"gravida":99999999999,"examinations":[{"measurements":[{"bpd":1e60}]}]})"},
      {{"make", "-", "--out", "none/w.nascor"}, "{}"},
      {{"json", "none", "bad.nascor"}},
      {{"dump", "none", "bad.nascor", "cut.nascor"}},
      {{"recover", "x"}},
      {{"recover", "--out", "y"}},
      {{"recover", "none", "--out", "y"}},
      {{"recover", "bad.nascor", "--out", "y"}},
      {{"compare", "none"}},
      {{"import", "--out", "a", "--into", "b", "x"}},
      {{"import", "--out", "-", "x"}},
      {{"import", "--patient=", "x"}},
      {{"import", "--fetus", "x", "y"}},
      {{"import", "--fetus", "a=1", "--fetus", "a=2", "y"}},
      {{"import", "none.dcm", "cut.nascor", "bad.csv", "bad.json", "twins.nascor"}},
      {{"import", "bare.csv", "--into", "twins.nascor"}},
      {{"export", "twins.nascor", "--format", "sr"}},
      {{"export", "twins.nascor", "--format", "sr", "--pages", "all", "--out", "o"}},
      {{"export", "twins.nascor", "--format", "sr", "--ndjson"}},
      {{"export", "twins.nascor", "--format", "fhir", "--ndjson", "--out", "o"}},
      {{"export", "twins.nascor", "--format", "x", "--out", "o"}},
      {{"summary", "twins.nascor"}},
      {{"summary", "twins.nascor", "--out", "o", "--format", "x"}},
      {{"summary", "twins.nascor", "--out", "o", "--paper", "x"}},
      {{"summary", "twins.nascor", "--out", "o", "--fetus", "9"}},
      {{"summary", "twins.nascor", "--out", "o", "--fetus", "5"}},
      {{"summary", "twins.nascor", "twins.nascor", "--out", "-"}},
      {{"summary", "twins.nascor", "--out", "bad.nascor/o", "--format", "html"}},
      {{"server"}},
      {{"server", "nix"}},
      {{"server", "echo"}},
      {{"server", "echo", "x"}},
      {{"server", "send"}},
      {{"server", "fetch", "--host", "h"}},
      {{"server", "find", "--out", "o"}},
      {{"server", "fetch", "--patient", "p", "--out", "-"}},
      {{"server", "find", "--patient="}},
      {{"server", "find", "--study="}},
      {{"server", "find", "--from", "x"}},
      {{"server", "find", "--host", "a:1", "--port", "1", "--called", "A"}},
      {{"server", "find", "--host", "a", "--port", "0", "--called", "A"}},
      {{"server", "find", "--host", "a", "--port", "1", "--called", "A\\B"}},
      {{"server", "find", "--host", "a", "--port", "1", "--called", "A", "--patient", "*"}},
      {{"server", "echo", "--host", "127.0.0.1", "--port", "1", "--called", "A"}},
  };
  for (const Line& line : lines) {
    const Outcome outcome = in(marking, line);
    EXPECT_FALSE(outcome.err.empty()) << shown(line) << "said nothing";
    for (const std::string& each : linesOf(outcome.err)) {
      const bool isName =
          each.find("  ") == 0 && each.find_first_of("abcdefghijklmnopqrstuvwxyz") == std::string::npos;
      if (each.empty() || isName) continue;
      EXPECT_THAT(each, HasSubstr(std::string(kMark))) << shown(line);
    }
  }

  const auto table = textsOf(contentsOfFile(NASCOR_TEXTS "/nascor.ts"));
  const auto keys = asked();
  EXPECT_GT(keys.size(), 200U);
  for (const Key& key : keys) {
    // What the system says may be of either table, and is no literal.
    const bool isOfSystem = key.first == foundation::kSystemTable || key.first == "Files";
    EXPECT_TRUE(isOfSystem || table.contains(key)) << key.first << " lacks: " << key.second;
  }
}

TEST_F(EveryLanguage, hasTheSameBytesForPrograms) {
  ASSERT_EQ(in(english, {{"index", ".", "--db", "a.db"}}).status, 1) << "two documents are none";
  const std::vector<Line> lines{
      {{"report", "twins.nascor", "no-edd.nascor"}},
      {{"report", "--json", "twins.nascor"}},
      {{"rows", "."}},
      {{"rows", "--identify", "--format", "jsonl", "--standard", "all", ".", "none"}},
      {{"calc"}, "ga_weeks,bpd_mm\n20,45\n20,4x\n60,90\n1\n"},
      {{"check", "--json", "twins.nascor", "no-edd.nascor"}},
      {{"json", "twins.nascor"}},
      {{"make", "-"}, R"({"gravida":99999999999})"},
      {{"dump", "twins.nascor"}},
      {{"dump", "--json", "twins.nascor"}},
      {{"weight", "--bpd", "90", "--hc", "200", "--ac", "300", "--fl", "70"}},
      {{"weight", "--json", "--bpd", "90", "--ac", "300"}},
      {{"crl", "5", "50"}},
      {{"standard", "0"}},
      {{"lookup", "0", "bpd", "--mean", "20.5"}},
      {{"reference"}},
      {{"reference", "--json"}},
      {{"reference", "who-2017", "efw", "--week", "-", "--z", "1"}, "20\nx\n"},
      {{"reference", "--json", "who-2017", "efw", "--week", "20", "--centile", "-"}, "20\n-3\n"},
      {{"compare", "twins.nascor"}},
      {{"compare", "--json", "twins.nascor"}},
      {{"self-test"}},
      {{"due", "--db", "a.db", "--from", "2026-01-01", "--days", "9999"}},
      {{"due", "--json", "--db", "a.db", "--from", "2026-01-01", "--days", "9999"}},
      {{"export", "--format", "fhir", "--ndjson", "twins.nascor"}},
      {{"import", "bare.csv"}},
  };
  for (const Line& line : lines) {
    const Outcome expected = in(english, line);
    const Outcome outcome = in(marking, line);
    EXPECT_FALSE(expected.out.empty()) << shown(line);
    EXPECT_EQ(outcome.out, expected.out) << shown(line);
    EXPECT_EQ(outcome.status, expected.status) << shown(line);
  }
}

TEST_F(EveryLanguage, hasItsHelp) {
  for (const char* command : {"help", "export", "standard", "lookup", "rows"}) {
    const Line line{{command, "--help"}};
    const std::string help = in(marking, line).out;
    for (const std::string& each : linesOf(help)) {
      // The names of standards and formulas are the same everywhere.
      const bool isNumbered = each.size() > 3 && each.starts_with("  ") && each[2] >= '0' && each[2] <= '9';
      if (!each.empty() && !isNumbered) {
        EXPECT_THAT(each, HasSubstr(std::string(kMark))) << command;
      }
    }
    std::string unmarked = help;
    for (std::size_t at = 0; (at = unmarked.find(kMark)) != std::string::npos;)
      unmarked.erase(at, kMark.size());
    EXPECT_EQ(unmarked, in(english, line).out) << command;
  }
}

TEST_F(EveryLanguage, hasItsOddities) {
  const Line line{{"check", "twins.nascor", "no-edd.nascor"}};
  const Outcome outcome = in(marking, line);
  EXPECT_EQ(outcome.out, "no-edd.nascor: the EDD is missing" + std::string(kMark) + "\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(in(english, line).out, "no-edd.nascor: the EDD is missing\n");
}

TEST_F(EveryLanguage, hasItsSummary) {
  const Line line{{"summary", "twins.nascor", "--format", "html", "--out", "-"}};
  const std::string text = in(marking, line).out;
  EXPECT_THAT(text, HasSubstr("<th scope=\"col\">Examination" + std::string(kMark)));
  EXPECT_THAT(in(english, line).out, Not(HasSubstr(std::string(kMark))));
}

/// The program itself, in a folder with catalogues beside it.
class TheProgram : public testing::Test {
 protected:
  TheProgram() {
    std::filesystem::create_directory(folder.path("bin"));
    std::filesystem::copy_file(NASCOR_CLI, program);
  }
  /// As the program is installed.
  void writeFrench() {
    std::map<std::string, std::string> texts;
    for (const auto& [key, translation] : textsOf(contentsOfFile(NASCOR_TEXTS "/nascor_fr.ts")))
      texts.emplace(gettextKey(key.first, key.second), translation);
    write("fr", std::move(texts));
  }
  void write(const char* language, std::map<std::string, std::string> texts) {
    writeCatalogue(folder.path("share/locale"), language, std::move(texts));
  }
  Outcome in(const char* language, std::vector<std::string> arguments) {
    return run(Call{.arguments = std::move(arguments), .program = program, .language = language});
  }

  ScratchFolder folder;
  const std::string program = folder.path("bin/nascor-cli");
};

TEST_F(TheProgram, speaksTheLanguageOfACatalogueBesideIt) {
  write("qq",
        {{gettextKey("CommandLine", "there is no command \"%1\""), "\xC2\xBB%1\xC2\xAB kenne ich nicht"},
         {gettextKey("CommandLine", "%1; did you mean \"%2\"?"), "meinten Sie \xC2\xBB%2\xC2\xAB? %1"},
         {gettextKey("CommandLine", "standard input"), "Standardeingabe"},
         {gettextKey("CommandLine", "there is no header"), "die Kopfzeile fehlt"},
         {gettextKey("CommandHelp", "usage: %1"), "Aufruf: %1"},
         {gettextKey("CommandHelp", "this text"), "dieser Text"}});
  EXPECT_THAT(
      in("qq", {"repot"}).err,
      StartsWith("nascor-cli: meinten Sie \xC2\xBBreport\xC2\xAB? \xC2\xBBrepot\xC2\xAB kenne ich nicht\n"
                 "Aufruf: nascor-cli COMMAND [ARGUMENT...]\n"));
  EXPECT_EQ(in("qq", {"calc"}).err, "Standardeingabe: die Kopfzeile fehlt\n");
  EXPECT_THAT(in("qq", {"dump", "--help"}).out, HasSubstr("--help, -h  dieser Text\n"));
  EXPECT_EQ(in("en", {"calc"}).err, "standard input: there is no header\n");
  EXPECT_THAT(in("qq", {"weight"}).err, StartsWith("nascor-cli: a length is missing\nAufruf: "))
      << "what is not translated is English";
}

TEST_F(TheProgram, saysInFrenchWhyATableIsNotTaken) {
  writeFrench();
  const std::string table = folder.write("a.csv", "exam_date,bpd_mm\n2026-13-40,60\n2026-11-13,250\n");
  EXPECT_EQ(in("fr", {"import", table}).err,
            table +
                ": ligne 2\u00a0: exam_date\u00a0: \"2026-13-40\" n\u2019est pas un jour\u00a0; "
                "\u00e9crivez-le comme 2026-11-13\n" +
                table +
                ": ligne 3\u00a0: bpd_mm\u00a0: \"250\" d\u00e9passe ce qu\u2019un document accepte, de 0 "
                "\u00e0 200\u00a0mm\n" +
                table +
                ": rien de ce tableau n\u2019est repris tant que toutes ses lignes ne conviennent pas\n");
  EXPECT_EQ(in("en", {"import", table}).err,
            table + ": line 2: exam_date: \"2026-13-40\" is no day; write it like 2026-11-13\n" + table +
                ": line 3: bpd_mm: \"250\" is beyond what a document takes, 0 to 200 mm\n" + table +
                ": nothing of this table is taken until every row of it fits\n");
}

TEST_F(TheProgram, saysInFrenchWhatOfAReportIsNotStored) {
  writeFrench();
  const std::string table = folder.write("a.csv", "exam_date,bpd_mm,note\n2026-11-13,60,x\n");
  const std::string document = folder.path("a.nascor");
  const Outcome first = in("fr", {"import", table, "--out", document});
  EXPECT_THAT(first.out,
              HasSubstr(R"("why":"a note is not taken"}],"warnings":["there is no column hc_mm or hc,)"))
      << "programs read it";
  const std::string other = folder.write("b.csv", "exam_date,bpd_mm\n2026-11-13,61\n");
  EXPECT_EQ(in("fr", {"import", other, "--into", document}).err,
            other +
                ": le rapport ne nomme aucune patiente\u00a0; rien n\u2019est enregistr\u00e9 \u00e0 moins "
                "d\u2019indiquer l\u2019identifiant, par --patient\n");
  EXPECT_EQ(in("fr", {"import", other, "--into", document, "--patient", "A"}).err,
            other + ": f\u0153tus 1\u00a0: BIP reste \u00e0 60\u00a0mm\u00a0; le rapport dit 61\u00a0mm\n");
}

TEST_F(TheProgram, saysInFrenchThatAServerDoesNotAnswer) {
  writeFrench();
  const std::vector<std::string> echo{"server", "echo", "--host",   "127.0.0.1",
                                      "--port", "1",    "--called", "A"};
  EXPECT_EQ(in("fr", echo).err,
            "127.0.0.1:1: n\u2019est pas contact\u00e9\u00a0: le module nascor-dicom-net n\u2019est pas "
            "install\u00e9\n");
  const auto modules = std::filesystem::path(NASCOR_CLI).parent_path().parent_path() / "lib";
  if (!std::filesystem::exists(modules / "nascor/nascor-dicom-net.so"))
    GTEST_SKIP() << "the network of DICOM is not built";
  std::filesystem::create_directory_symlink(modules, folder.path("lib"));
  EXPECT_THAT(in("fr", echo).err, HasSubstr("\n127.0.0.1:1: ne peut pas \u00eatre joint\u00a0: "));
}

TEST_F(TheProgram, comesToNoHarmByACatalogueWithOtherPlaceHolders) {
  write("qq", {{gettextKey("CommandLine", "there is no command \"%1\""), "%9%s%n%2 %1$s %"},
               {gettextKey("CommandHelp", "usage: %1"), "%2"},
               {gettextKey("CommandLine", "%1; did you mean \"%2\"?"), "\xFF\x1B[31m%1\n%2"}});
  const Outcome outcome = in("qq", {"repot"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.err, "nascor-cli: \xEF\xBF\xBD\\x1b[31m%9%s%n%2 repot$s %\\nreport\n%2\n");
}

}  // namespace
}  // namespace nascor::tests

// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/GettextLocalizer.h"

#include <array>
#include <clocale>
#include <filesystem>
#include <system_error>

#include <libintl.h>

#include "foundation/Sentence.h"

namespace nascor::posix {

namespace {

constexpr const char* kDomain = "nascor";
constexpr const char* kSystemDomain = "libc";

/// The text of the table, where the thread speaks `locale` for as long as it takes.
std::string translated(locale_t locale, const char* domain, const std::string& identifier,
                       std::string_view key) {
  const locale_t before = ::uselocale(locale);
  const char* found = ::dgettext(domain, identifier.c_str());
  std::string text(found == identifier.c_str() ? key : found);
  ::uselocale(before);
  return text;
}

}  // namespace

GettextLocalizer::GettextLocalizer(const std::string& folder)
    : locale_(::newlocale(LC_MESSAGES_MASK, "", nullptr)) {
  ::bindtextdomain(kDomain, folder.c_str());
  ::bind_textdomain_codeset(kDomain, "UTF-8");
  ::bind_textdomain_codeset(kSystemDomain, "UTF-8");
}

GettextLocalizer::~GettextLocalizer() {
  if (locale_ != nullptr) ::freelocale(static_cast<locale_t>(locale_));
}

std::string GettextLocalizer::text(std::string_view table, std::string_view key) const {
  // The empty key is that of a catalogue's head.
  if (locale_ == nullptr || key.empty()) return std::string(key);
  const auto locale = static_cast<locale_t>(locale_);
  if (table == foundation::kSystemTable) return translated(locale, kSystemDomain, std::string(key), key);
  // A context as lconvert writes it, which has room for a comment behind the bar.
  std::string identifier(table);
  if (!table.empty()) identifier += "|\004";
  return translated(locale, kDomain, identifier.append(key), key);
}

foundation::ShortDateForm GettextLocalizer::shortDateForm() const {
  return foundation::EnglishLocalizer().shortDateForm();
}

std::string GettextLocalizer::longDateText(const foundation::CivilDay& day) const {
  using foundation::translatable;
  // The months as they stand in "4 March 2027".
  constexpr std::array<std::string_view, 12> kMonths{
      //: A month as it stands in a day, "4 January 2027".
      translatable("Writing", "January"),   translatable("Writing", "February"),
      translatable("Writing", "March"),     translatable("Writing", "April"),
      translatable("Writing", "May"),       translatable("Writing", "June"),
      translatable("Writing", "July"),      translatable("Writing", "August"),
      translatable("Writing", "September"), translatable("Writing", "October"),
      translatable("Writing", "November"),  translatable("Writing", "December")};
  if (!isValid(day)) return {};
  const std::string month = text("Writing", kMonths.at(static_cast<std::size_t>(day.month) - 1));
  //: The first day of a month, as it stands in "1 March 2027".
  const std::string number = day.day == 1 ? text("Writing", "1") : std::to_string(day.day);
  //: A day: %1 is its number, %2 the month in words, %3 the year, as in "4 March 2027".
  return said(foundation::Sentence("Writing", "%1 %2 %3").with(number, month, day.year), *this);
}

char GettextLocalizer::decimalSign() const {
  //: The decimal sign: a point or a comma.
  return text("Writing", ".") == "," ? ',' : '.';
}

std::string GettextLocalizer::upperCased(std::string_view text) const {
  return foundation::EnglishLocalizer().upperCased(text);
}

std::string catalogueFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : (program.parent_path() / NASCOR_CATALOGUES).lexically_normal().string();
}

}  // namespace nascor::posix

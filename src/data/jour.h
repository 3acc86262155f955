#pragma once
// Days, dates and periods. A day is a whole number, one more for each day: records store its
// decimal text, queries compare it and keys hold it on 5 digits. Day 0 is 31/12/1967, so 01/01/1968
// is day 1 and 22/11/2026 is day 21511. A period is the text "AAAAMM". The calendar is the
// Gregorian one, carried back before it was introduced.
//
// Pure functions; Lib words them for the screens.

#include <optional>
#include <string>
#include <string_view>

namespace data {

struct Date {
  int annee = 0;
  int mois = 0;  // 1 to 12
  int jour = 0;  // 1 to 31
  bool operator==(const Date&) const = default;
};

bool bissextile(int annee);
// 28 to 31; 0 for a month that does not exist.
int joursDuMois(int annee, int mois);

// Nothing for a date that does not exist, or outside the years 1 to 9999.
std::optional<long> jourDe(const Date& date);
// For the days of those years; another day counts as the nearest of them.
Date dateDe(long jour);
// 0 for Monday to 6 for Sunday, the weekday digit of the planning.
int jourDeSemaine(long jour);

// "JJ/MM/AAAA"; "" for a day outside the years 1 to 9999.
std::string dateAffichee(long jour);
// That form exactly; nothing for any other text.
std::optional<long> lireDateAffichee(std::string_view texte);
// What a clerk types: day, month and year parted by "/", "-", "." or blanks ("1/5/26",
// "01-05-2026", "1 5 26"), or digits alone, JJMMAA or JJMMAAAA. Two digits of a year mean 2000 to
// 2049, then 1950 to 1999; day and month alone ("1/5", "0105") are of the current year; a year in
// front turns the order round ("2026-05-01"). Nothing for another form, a date that does not exist,
// or a year outside 1900 to 2199.
std::optional<long> lireDateSaisie(std::string_view texte, int anneeCourante);

// First and last day of a period, a period moved by months (negative: back), the period of a day.
// Nothing, or "", for a text that is no period.
std::optional<long> premierJour(std::string_view periode);
std::optional<long> dernierJour(std::string_view periode);
std::string decalePeriode(std::string_view periode, int mois);
std::string periodeDe(long jour);

// A period as the calendar writes it, "février 2026"; "" for a text that is no period. The labels
// that the activity splits show have an accentuation of their own: see Determinerdate.
std::string moisAnnee(std::string_view periode);

}  // namespace data

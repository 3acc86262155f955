#pragma once
// Demonstration data: every file of the suite, filled with carers, people helped, several years of
// contracts of every kind, payslip details and planning that agree with each other.
//
// Codes of persons are 5 characters: 5 digits up to "99999", then a letter and 4 digits from
// "A0000" to "Z9999", which sorts after them.

#include <functional>
#include <string>

#include "data/storage.h"

namespace demo {

struct OptionsDemo {
  int aidants = 200;
  unsigned long graine = 1;
  long aujourdhui = 21511;  // internal day, 22/11/2026: the data end around it
};

// As many carers as the codes leave room for, beside the people helped.
inline constexpr int AidantsMax = 359'900;

// `faits` persons out of `total` are written.
using Progres = std::function<void(long faits, long total)>;

// Writes by Put alone, so that the caller decides on one block around it (Storage::EnUnBloc). The
// same options give the same records whatever the machine; a carer's records depend on the seed, on
// the day and on the carer's number only. Within each file keys come in ascending order, but for
// HISTORINDEM whose keys begin with the provident contract. A number of carers below 1 or above
// AidantsMax is std::invalid_argument, with a French text.
void genererDemo(data::Storage& storage, const OptionsDemo& options, const Progres& progres = {});

// The code of the n-th carer or person helped, from 1.
std::string codePersonne(int numero);

}  // namespace demo

#include <algorithm>

#include "data/query.h"
#include "data/store_error.h"
#include "data/texte.h"

namespace data {

namespace {

constexpr std::size_t largestAttributeDigits = 4;

constexpr bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

constexpr bool isOperator(char c) {
  return c == '=' || c == '<' || c == '>' || c == '#';
}

// `what` is the thing refused, with its article; `at` the byte where it stops making sense. In the
// quote, blanks stand for control characters, so that the places stay.
[[noreturn]] void refuseAt(std::string_view what, std::string_view text, std::size_t at,
                           std::string_view why, std::string_view file) {
  std::string quoted(text);
  for (char& c : quoted) c = static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
  std::string message(what);
  message += " « ";
  message += quoted;
  message +=
      " » est refusée au caractère " + std::to_string(longueur(text.substr(0, at)) + 1) + " : ";
  message += why;
  message += '.';
  throw StoreError(NumeroErreur::Question, message, std::string(file));
}

bool isFileName(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return estChiffre(c) || (c >= 'A' && c <= 'Z');
  });
}

// False when `name` is no field of `file`.
bool findField(std::string_view file, std::string_view name, Field& field) {
  if (name == "@ID") return true;
  if (std::all_of(name.begin(), name.end(), estChiffre)) {
    if (name.empty() || name.size() > largestAttributeDigits) return false;
    for (const char digit : name) field.attribute = field.attribute * 10 + (digit - '0');
    return true;
  }
  field.definition = findDefinition(file, name);
  return field.definition != nullptr;
}

std::string unknownField(std::string_view file, std::string_view name) {
  if (name.empty()) return "un champ est attendu";
  std::string why("« ");
  why += sansControles(name);
  why += " » n'est ni un numéro d'attribut ni un nom de champ du fichier ";
  return why += file;
}

void readMarks(Comparison& comparison) {
  std::string_view& value = comparison.value;
  // Of a run at either end, two stand for one, and one that is left is the mark.
  const std::size_t last = value.find_last_not_of(']');
  const std::size_t after = value.size() - (last == std::string_view::npos ? 0 : last + 1);
  const bool begin = after % 2 == 1;
  value.remove_suffix(after - after / 2);
  const std::size_t before = std::min(value.find_first_not_of('['), value.size());
  const bool end = before % 2 == 1;
  value.remove_prefix(before - before / 2);
  if (begin || end) comparison.mark = !end ? Mark::Begin : begin ? Mark::Within : Mark::End;
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  Query run() {
    parseVerb();
    parseFile();
    parseRestriction();
    parseClauses();
    parseSorts();
    if (!atEnd()) {
      refuse(pos_, query_.sorts.empty()
                       ? "AND, OR, AVEC, SANS, PAR, PAR-DECR ou la fin de la requête est attendu"
                       : "PAR, PAR-DECR ou la fin de la requête est attendu");
    }
    return std::move(query_);
  }

 private:
  [[noreturn]] void refuse(std::size_t at, std::string_view why) const {
    refuseAt("La requête", text_, at, why, query_.file);
  }

  void skipBlanks() {
    while (pos_ < text_.size() && isBlank(text_[pos_])) ++pos_;
  }
  bool atEnd() {
    skipBlanks();
    return pos_ == text_.size();
  }
  bool at(bool (*kind)(char)) {
    skipBlanks();
    return pos_ < text_.size() && kind(text_[pos_]);
  }
  std::string_view peekWord() {
    skipBlanks();
    std::size_t end = pos_;
    while (end < text_.size() && !isBlank(text_[end]) && !isOperator(text_[end]) &&
           text_[end] != '"') {
      ++end;
    }
    return text_.substr(pos_, end - pos_);
  }
  bool acceptWord(std::string_view word) {
    if (peekWord() != word) return false;
    pos_ += word.size();
    return true;
  }
  // Steps over AND or OR, and tells OR.
  bool acceptJoin(bool& isOr) {
    isOr = acceptWord("OR");
    return isOr || acceptWord("AND");
  }

  void parseVerb() {
    // Every store scans in key order, so the order of SELECT is that of SSELECT.
    if (!acceptWord("SSELECT") && !acceptWord("SELECT")) {
      refuse(pos_, "le verbe SSELECT ou SELECT est attendu");
    }
  }

  void parseFile() {
    const auto name = peekWord();
    if (!isFileName(name)) refuse(pos_, "un nom de fichier en majuscules est attendu");
    query_.file = name;
    pos_ += name.size();
  }

  void parseRestriction() {
    if (!at(isOperator)) return;
    query_.restriction.emplace();
    parseComparisons(*query_.restriction);
    if (peekWord() == "OR") {
      refuse(pos_, "ce qui suit une restriction de clé s'y joint par AND, ou par rien");
    }
  }

  void parseClauses() {
    bool isOr = false;
    bool needed = query_.restriction && acceptWord("AND");
    while (parseClause(isOr)) {
      needed = acceptJoin(isOr);
      if (!needed) return;
    }
    if (needed) refuse(pos_, "une clause AVEC ou SANS est attendue");
  }

  // False when no clause begins here.
  bool parseClause(bool orBefore) {
    Clause clause;
    clause.orBefore = orBefore;
    clause.without = acceptWord("SANS");
    if (!clause.without && !acceptWord("AVEC")) return false;
    clause.field = parseField();
    parseComparisons(clause);
    query_.clauses.push_back(clause);
    return true;
  }

  Field parseField() {
    const auto name = peekWord();
    Field field;
    if (!findField(query_.file, name, field)) refuse(pos_, unknownField(query_.file, name));
    pos_ += name.size();
    return field;
  }

  void parseComparisons(Clause& clause) {
    clause.first = query_.comparisons.size();
    if (at(isOperator)) {
      parseComparison(clause.field, false);
    } else if (at([](char c) { return c == '"'; })) {
      refuse(pos_, "un opérateur est attendu avant la valeur");
    } else {
      query_.comparisons.emplace_back();  // a field alone: different from ""
      clause.end = query_.comparisons.size();
      return;
    }
    for (bool isOr = false;;) {
      const std::size_t before = pos_;
      if (!acceptJoin(isOr) || !at(isOperator)) {
        pos_ = before;
        break;
      }
      parseComparison(clause.field, isOr);
    }
    clause.end = query_.comparisons.size();
  }

  void parseComparison(const Field& field, bool orBefore) {
    Comparison comparison;
    comparison.orBefore = orBefore;
    comparison.op = parseOperator();
    skipBlanks();
    const std::size_t place = pos_;
    comparison.value = parseValue();
    readMarks(comparison);
    if (comparison.mark == Mark::Within && comparison.op > Operator::Different) {
      refuse(place, "avec les marques [ et ] à la fois, seuls =, <> et # ont un sens");
    }
    if (field.definition != nullptr && field.definition->source == Definition::Source::Capitales) {
      comparison.value = query_.values.emplace_front(plier(comparison.value));
    }
    comparison.number = readNumber(comparison.value);
    query_.comparisons.push_back(comparison);
  }

  Operator parseOperator() {
    struct Row {
      std::string_view text;
      Operator op;
    };
    static constexpr Row rows[] = {
        {"<>", Operator::Different}, {"<=", Operator::LessEqual}, {">=", Operator::GreaterEqual},
        {"=", Operator::Equal},      {"#", Operator::Different},  {"<", Operator::Less},
        {">", Operator::Greater},
    };
    const auto rest = text_.substr(pos_);
    const Row* row = rows;
    while (!rest.starts_with(row->text)) ++row;  // the caller saw one of their first characters
    pos_ += row->text.size();
    return row->op;
  }

  std::string_view parseValue() {
    if (pos_ == text_.size() || text_[pos_] != '"') {
      refuse(pos_, "une valeur entre guillemets est attendue après l'opérateur");
    }
    std::string* joined = nullptr;  // the value, once it holds a quote
    for (std::size_t from = pos_ + 1;;) {
      const auto close = text_.find('"', from);
      if (close == std::string_view::npos) {
        refuse(pos_, "le guillemet ouvert ici n'est pas fermé");
      }
      const auto piece = text_.substr(from, close - from);
      const bool doubled = text_.substr(close + 1).starts_with('"');
      if (doubled && joined == nullptr) joined = &query_.values.emplace_front();
      if (joined != nullptr) joined->append(piece);
      if (!doubled) {
        pos_ = close + 1;
        return joined == nullptr ? piece : std::string_view(*joined);
      }
      *joined += '"';
      from = close + 2;
    }
  }

  void parseSorts() {
    for (;;) {
      Sort sort;
      sort.descending = acceptWord("PAR-DECR");
      if (!sort.descending && !acceptWord("PAR")) return;
      sort.field = parseField();
      query_.sorts.push_back(sort);
    }
  }

  std::string_view text_;
  std::size_t pos_ = 0;
  Query query_;
};

}  // namespace

Query parseQuery(std::string_view text) {
  return Parser(text).run();
}

std::vector<Field> parseFieldList(std::string_view file, std::string_view text) {
  std::vector<Field> fields;
  for (std::size_t at = 0;;) {
    at = text.find_first_not_of(' ', at);
    if (at == std::string_view::npos) break;
    const auto name = text.substr(at, text.find(' ', at) - at);
    Field field;
    if (!findField(file, name, field)) {
      refuseAt("La liste de champs", text, at, unknownField(file, name), file);
    }
    fields.push_back(field);
    at += name.size();
  }
  if (fields.empty()) {
    refuseAt("La liste de champs", text, text.size(), unknownField(file, {}), file);
  }
  return fields;
}

}  // namespace data

#include "addon/html/page_text.h"

#include <algorithm>

#include "addon/foundation/identifier.h"

namespace kesto {

namespace {

constexpr char kMark = '\xA7';  // the paragraph sign

constexpr std::string_view kFirstOfName = " 0.html\" target=\"space\">";

constexpr std::string_view kKeywords[] = {
    "public", "private",  "protected", "virtual",  "static",   "friend",
    "const",  "operator", "class",     "CLASS",    "template", "__export",
    "export", "_export",  "_import",   "__import", "extern",
};

bool isKeyword(std::string_view word) {
  return std::find(std::begin(kKeywords), std::end(kKeywords), word) != std::end(kKeywords);
}

// Writes one text, run by run.
class TextRuns {
 public:
  TextRuns(std::string& page, std::string_view text, const WordLinks& links, const htSymbol* entry)
      : page_(page), rest_(text), links_(links), entry_(entry) {}

  void prose(ProseForm form) {
    while (!rest_.empty()) {
      if (isIdentifierCharacter(rest_.front())) {
        word(takeWord());
      } else if (rest_.front() == kMark) {
        rest_.remove_prefix(1);
        marked(form);
      } else {
        other();
      }
    }
  }

  void code() {
    while (!rest_.empty()) {
      if (!isIdentifierCharacter(rest_.front())) {
        other();
      } else if (const std::string_view taken = takeWord(); isKeyword(taken)) {
        append(page_, {"<b>", taken, "</b>"});
      } else {
        word(taken);
      }
    }
  }

 private:
  std::string_view takeWord() {
    std::size_t size = 0;
    while (size < rest_.size() && isIdentifierCharacter(rest_[size])) {
      ++size;
    }
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return taken;
  }

  void word(std::string_view taken) { links_.appendWord(page_, taken, entry_); }

  // What follows a mark: another one, for the return value, or the name of a parameter.
  void marked(ProseForm form) {
    const bool is_long = form == ProseForm::kLong;
    if (rest_.starts_with(kMark)) {
      rest_.remove_prefix(1);
      page_ += is_long ? "<br><br><B>Retour :</B><br><br>\n" : "<br><U><I>Retour</I></U> : ";
      return;
    }
    if (is_long && !parameters_begun_) {
      page_ += "<br><br><B>Param\xE8tres :</B><br>\n";
      parameters_begun_ = true;
    }
    page_ += "<br><I><CODE>";
    word(takeWord());
    page_ += "</CODE></I>";
  }

  // One character that is no part of a word, or "//".
  void other() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    switch (c) {
      case '&':
        page_ += "&#38";
        break;
      case '<':
        page_ += "&#60";
        break;
      case '>':
        page_ += "&#62";
        break;
      case '"':
        page_ += "&#34";
        break;
      case kMarkedLine:
        page_ += "<br>\n";
        break;
      case '/':
        slash();
        break;
      case '\n':
        page_ += italics_ ? "</I>\n" : "\n";
        italics_ = false;
        break;
      default:
        page_ += c;
    }
  }

  void slash() {
    if (italics_ || !rest_.starts_with('/')) {
      page_ += '/';
      return;
    }
    rest_.remove_prefix(1);
    page_ += "<I>//";
    italics_ = true;
  }

  std::string& page_;
  std::string_view rest_;
  const WordLinks& links_;
  const htSymbol* entry_;
  bool italics_ = false;
  bool parameters_begun_ = false;
};

}  // namespace

WordLinks::WordLinks(const htProjet& projet) {
  add(projet.classes, &Named::of_class);
  add(projet.macros, &Named::of_macro);
  add(projet.functions, &Named::of_function);
}

template <class Table>
void WordLinks::add(const Table& entries, Sort sort) {
  for (int i = 0; i < entries.count(); ++i) {
    const htSymbol*& first = named_[entries[i]->name.view()].*sort;
    if (first == nullptr) {
      first = entries[i];
    }
  }
}

void WordLinks::appendWord(std::string& page, std::string_view word, const htSymbol* entry) const {
  const Named* const found = named_.find(word);
  const Named named = found != nullptr && !word.empty() ? *found : Named();
  const auto leads = [entry](const htSymbol* to) { return to != nullptr && to != entry; };
  if (leads(named.of_class)) {
    append(page, {"<a href =\"Class ", word, ".html\" target=\"space\">", word, "</a>"});
  } else if (leads(named.of_macro)) {
    append(page, {"<a href =\"Define ", word, kFirstOfName, word, "</a>"});
  } else if (leads(named.of_function)) {
    append(page, {"<a href =\"Fnc ", word, kFirstOfName, word, "</a>"});
  } else {
    page += word;
  }
}

void appendProse(std::string& page, std::string_view text, const WordLinks& links,
                 const htSymbol* entry, ProseForm form) {
  if (text.empty()) {
    page += "<I>Pas de documentation disponible !</I><br>";
    return;
  }
  TextRuns(page, text, links, entry).prose(form);
  page += "</pre>\n";
}

void appendCode(std::string& page, std::string_view text, const WordLinks& links,
                const htSymbol* entry) {
  if (text.empty()) {
    page += "<I><pre>Pas de code disponible !</I></pre><br>";
    return;
  }
  page += "<pre>";
  TextRuns(page, text, links, entry).code();
  page += "</pre>\n";
}

}  // namespace kesto

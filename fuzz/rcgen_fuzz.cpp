// Resource scripts, from their bytes to the texts of the classes.
#include <memory>
#include <string>

#include "addon/foundation/text_file.h"
#include "addon/rcgen/dialog_emitter.h"
#include "addon/rcgen/rc_fields.h"
#include "addon/rcgen/rc_reader.h"
#include "fuzz/fuzz.h"

namespace kesto {

namespace {

struct Texts {
  std::string header;
  std::string implementation;
  bool operator==(const Texts&) const = default;
};

Texts textsOf(RcReader& reader, std::string_view script) {
  Texts texts;
  DialogEmitter emitter(texts.header, texts.implementation);
  reader.read(script, emitter);
  return texts;
}

void checkParts(std::string_view script) {
  TextLines lines(script, 1023);
  for (std::string_view line; lines.next(line);) {
    FUZZ_CHECK(line.size() < 1023);
    const RcToken token = rcToken(line);
    FUZZ_CHECK(isWithin(token.text, line) && token.end <= line.size());
    FUZZ_CHECK(isWithin(rcMemberName(token.text), line));
    for (const std::string_view field : rcCommaFields(line)) {
      FUZZ_CHECK(field.empty() || isWithin(field, line));
    }
  }
}

std::size_t count(std::string_view text, std::string_view wanted) {
  std::size_t found = 0;
  for (std::size_t at = 0; (at = text.find(wanted, at)) != std::string_view::npos; ++at) {
    ++found;
  }
  return found;
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  std::string script(inputText(data, size));
  takeTextMode(script);
  checkParts(script);
  const auto reader = std::make_unique<RcReader>();
  const Texts texts = textsOf(*reader, script);
  // Nothing is left from one script to the next.
  FUZZ_CHECK(textsOf(*reader, script) == texts);
  FUZZ_CHECK(textsOf(*std::make_unique<RcReader>(), script) == texts);
  // A class for each dialog that is closed, and no text that is not text.
  FUZZ_CHECK(count(texts.header, "\nclass rc") >= count(texts.header, "\n} ;\n"));
  FUZZ_CHECK(count(texts.header, "\n} ;\n") ==
             count(texts.implementation, "\n  switch (hdr->idFrom)\n"));
  FUZZ_CHECK(texts.header.find('\0') == std::string::npos);
  FUZZ_CHECK(texts.implementation.find('\0') == std::string::npos);
  return 0;
}

#include "addon/ide/file_text.h"

#include "doctest.h"
#include "tests/addon/bar_session.h"

TEST_CASE("a file is read whole, across chunks, and its stream released") {
  BarSession session;
  session.ide.stream.disk = std::string(70000, 'x') + "end";
  const kesto::FileText text = kesto::readFileText("C:\\A.CPP");
  CHECK(text.length() == 70003);
  CHECK(text.view().substr(70000) == "end");
  CHECK(text.data()[70003] == '\0');
  CHECK(session.ide.stream.modes == std::vector<int>{kStreamBufferOrFile});
}

TEST_CASE("a read that fails is tried once more, in the place the state names") {
  BarSession session;
  fake::StreamSource& stream = session.ide.stream;
  stream.disk = "disk";
  stream.buffer = "buffer";
  SUBCASE("no editor holds the file") {
    stream.negative_reads = 1;
    CHECK(kesto::readFileText("f").view() == "disk");
    CHECK(stream.modes == std::vector<int>{kStreamBufferOrFile, kStreamFile});
  }
  SUBCASE("an editor holds it") {
    stream.negative_reads = 1;
    stream.in_editor = true;
    CHECK(kesto::readFileText("f").view() == "buffer");
    CHECK(stream.modes == std::vector<int>{kStreamBufferOrFile, kStreamBuffer});
  }
  SUBCASE("the second try fails too") {
    stream.negative_reads = 2;
    CHECK(kesto::readFileText("f").length() == 0);
    CHECK(stream.modes.size() == 2);
  }
}

TEST_CASE("without an IDE a file reads as empty") {
  CHECK(kesto::readFileText("C:\\A.CPP").view().empty());
}

#include "addon/ide/project_options.h"

#include <map>
#include <memory>

#include "addon/delivery/project_options.h"
#include "addon/mail/project_options.h"
#include "doctest.h"

namespace {

// Bytes by name in blocks of their own, so that reading beyond them is caught.
class Store : public kesto::ProjectOptionStore {
 public:
  void plant(const std::string& name, const std::string& bytes, int claimed) {
    Block& block = blocks_[name];
    block.bytes.reset(new char[bytes.size()]);
    bytes.copy(block.bytes.get(), bytes.size());
    block.size = claimed;
  }
  void plantNothing(const std::string& name, int claimed) { blocks_[name].size = claimed; }
  void plantText(const std::string& name, const std::string& text) {
    plant(name, text + '\0', static_cast<int>(text.size()) + 1);
  }
  void plantNumber(const std::string& name, int number) { set(name.c_str(), &number, 4); }

  int get(const char* name, const void** data) override {
    const auto block = blocks_.find(name);
    if (block == blocks_.end()) {
      return 0;
    }
    *data = block->second.bytes.get();
    return block->second.size;
  }
  void set(const char* name, const void* data, int size) override {
    plant(name, std::string(static_cast<const char*>(data), static_cast<size_t>(size)), size);
  }
  std::string stored(const std::string& name) {
    Block& block = blocks_[name];
    return std::string(block.bytes.get(), static_cast<size_t>(block.size));
  }

 private:
  struct Block {
    std::unique_ptr<char[]> bytes;
    int size = 0;
  };
  std::map<std::string, Block> blocks_;
};

}  // namespace

TEST_CASE("integers are four bytes long or not there") {
  const struct {
    std::string bytes;
    int claimed;
    int value;
  } rows[] = {
      {std::string("\x07\0\0\0", 4), 4, 7},          {"\xFF\xFF\xFF\xFF", 4, -1},
      {std::string("\x07\0\0", 3), 3, 55},           {std::string("\x07\0\0\0\0", 5), 5, 55},
      {std::string("\x07\0\0\0", 4), 0, 55},         {std::string("\x07\0\0\0", 4), -4, 55},
      {std::string("\x07\0\0\0", 4), 2000000000, 55}};
  for (const auto& row : rows) {
    CAPTURE(row.claimed);
    Store store;
    store.plant("N", row.bytes, row.claimed);
    kesto::IntegerOption option{"N", 55};
    option.value = 3;
    option.read(store);
    CHECK(option.value == row.value);
  }
  Store empty;
  empty.plantNothing("N", 4);
  kesto::IntegerOption option{"N", 55};
  option.value = 3;
  option.read(empty);
  CHECK(option.value == 55);
  option.value = -2;
  option.write(empty);
  CHECK(empty.stored("N") == "\xFE\xFF\xFF\xFF");
}

TEST_CASE("texts start behind their marker and end in time") {
  const struct {
    std::string bytes;
    int claimed;
    std::string value;
  } rows[] = {{std::string("~C:\\s\0", 6), 6, "C:\\s"},
              {std::string("?other\0", 7), 7, "other"},
              {std::string("~\0", 2), 2, ""},
              {"~", 1, ""},
              {"~abc", 4, "abc"},  // no terminator
              {"~" + std::string(65535, 'x'), 65536, std::string(65534, 'x')},
              {std::string("~ab\0cd\0", 7), 7, "ab"},       // more behind it
              {std::string("~ab\0", 4), 2000000000, "ab"},  // a size that lies
              {std::string("~ab\0", 4), 2, "a"},            // one that is too small
              {std::string("\0", 1), 100, ""},
              {std::string("~ab\0", 4), 0, "default"},
              {std::string("~ab\0", 4), -1, "default"}};
  for (const auto& row : rows) {
    CAPTURE(row.bytes);
    CAPTURE(row.claimed);
    Store store;
    store.plant("T", row.bytes, row.claimed);
    kesto::TextOption option{"T", '~', "default"};
    option.value = "former";
    option.read(store);
    CHECK(option.value == row.value);
  }
  Store store;
  store.plantNothing("T", 10);
  kesto::TextOption option{"T", '~', "default"};
  option.read(store);
  CHECK(option.value == "default");
  option.write(store);
  CHECK(store.stored("T") == std::string("~default\0", 9));
}

TEST_CASE("delivery groups without a type are skipped; without their node they are stored") {
  Store store;
  store.plantNumber("Kesto_NB_ODR", 3);
  store.plantText("Kesto_ODR_TYP_0", "+.exe");
  store.plantText("Kesto_ODR_REP_0", "+D:\\out");
  store.plantText("Kesto_ODR_TYP_1", "+");
  store.plantText("Kesto_ODR_REP_1", "+D:\\lost");
  store.plantText("Kesto_ODR_TYP_2", "+.dll");
  store.plantNumber("Kesto_ODR_ACT_2", 0);
  kesto::DeliveryProjectOptions options;
  options.groups.append(new kesto::OneDelRep("of another", "project"));
  options.readCount(store);
  options.readGroups(store);
  REQUIRE(options.groups.count() == 2);
  CHECK(options.groups[0]->directory == "D:\\out");
  CHECK(options.groups[0]->active == 1);
  CHECK(options.groups[1]->type == ".dll");
  CHECK(options.groups[1]->directory.empty());
  CHECK(options.groups[1]->active == 0);
  CHECK(options.table_name == "Delivery");

  for (const bool found : {true, false}) {
    if (!found) {
      kesto::DeliveryNodes nodes;
      nodes.loaded = true;
      options.rebuild(nodes);
      options.rebuild(nodes);
      CHECK(options.groups.count() == 0);
    }
    Store saved;
    options.writeGroups(saved);
    options.writeActive(saved);
    CHECK(saved.stored("Kesto_NB_ODR") == std::string("\x02\0\0\0", 4));
    CHECK(saved.stored("Kesto_ODR_TYP_1") == std::string("+.dll\0", 6));
    CHECK(saved.stored("Kesto_ODR_ACT_0") == std::string("\x01\0\0\0", 4));
    CHECK(saved.stored("Kesto_ODR_ACT_1") == std::string(4, '\0'));
  }
  // Those of another project are not this one's.
  Store other;
  options.readCount(other);
  options.readGroups(other);
  options.writeGroups(other);
  CHECK(other.stored("Kesto_NB_ODR") == std::string(4, '\0'));
}

TEST_CASE("recipients, and counts that no project has") {
  for (const int count : {-1, 0, 2000000000}) {
    Store store;
    store.plantNumber("Kesto_NB_MAIL", count);
    store.plantNumber("Kesto_NB_ODR", count);
    store.plantText("Kesto_MAIL_PJ_9999", "+anna");
    store.plantText("Kesto_MAIL_PJ_10000", "+one too many");
    store.plantText("Kesto_ODR_TYP_9999", "+.exe");
    store.plantText("Kesto_ODR_TYP_10000", "+.dll");
    kesto::Ensemble<kesto::String> recipients;
    recipients.append(new kesto::String("of another project"));
    kesto::readRecipients(store, recipients);
    const std::size_t kept = count > 0 ? 1 : 0;
    CHECK(recipients.count() == static_cast<int>(kept));
    kesto::DeliveryProjectOptions delivery;
    delivery.readCount(store);
    delivery.readGroups(store);
    CHECK(delivery.groups.count() == static_cast<int>(kept));
  }
  Store uncounted;
  uncounted.plantText("Kesto_MAIL_PJ_0", "+anna");
  kesto::Ensemble<kesto::String> recipients;
  kesto::readRecipients(uncounted, recipients);
  CHECK(recipients.count() == 0);
}

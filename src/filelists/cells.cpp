#include "filelists/cells.h"

#include "base/numbers.h"

namespace orvik::mdlMain {

namespace {

Text Size(std::int32_t length) { return u"/" + Padded(length / 1024, 1) + u"kb"; }

}  // namespace

Text OneFolderCell(std::int32_t checksum, std::int32_t length) {
  Text digits = Padded(checksum, 0);
  digits.insert(digits.starts_with(u'-') ? 1 : 0, u"x");
  return digits + Size(length);
}

Text TwoFolderCell(std::int32_t checksum, std::int32_t length) {
  return u"x" + Padded(checksum, 0) + Size(length);
}

}  // namespace orvik::mdlMain

#include "startup/main.h"

namespace orvik::mdlMain {

void Main(const Text&) {}

}  // namespace orvik::mdlMain

#include "forms/headless/limited_file_system.h"

#include "forms/headless/run_end.h"

namespace orvik::forms::headless {

class LimitedFileSystem::CountedSearch : public host::Search {
 public:
  CountedSearch(LimitedFileSystem& owner, std::unique_ptr<host::Search> inner)
      : owner_(owner), inner_(std::move(inner)) {}
  bool Next(host::FindRecord& record) override {
    owner_.Counted();
    return inner_->Next(record);
  }

 private:
  LimitedFileSystem& owner_;
  std::unique_ptr<host::Search> inner_;
};

host::FileSystem& LimitedFileSystem::Counted() {
  clock_.Check();
  if (calls_ && done_ >= *calls_) throw RunEnded{RunEnd::kCalls};
  ++done_;
  return inner_;
}

std::unique_ptr<host::Search> LimitedFileSystem::FindFirst(const Text& path_and_mask,
                                                           host::Details details,
                                                           host::FindRecord& record) {
  auto search = Counted().FindFirst(path_and_mask, details, record);
  if (search == nullptr) return nullptr;
  return std::make_unique<CountedSearch>(*this, std::move(search));
}

}  // namespace orvik::forms::headless

// What the tests of the duplicate search and of its review start from.
#pragma once

#include "duplicates/frm_doubles.h"
#include "duplicates/frm_input_box.h"
#include "duplicates/frm_sources.h"
#include "forms/instance.h"
#include "unit/support/program_test.h"

namespace orvik::test {

class DoublesTest : public ProgramTest {
 protected:
  DoublesTest() {
    mdlMain::DoublesExtraFolders = {};
    mdlMain::InputAnswer.clear();
  }

  frmDoubles& form() { return forms::The<frmDoubles>(); }
  const forms::TreeView& tree() { return form().tvMain; }

  void Open(const Text& folder = u"T:\\d") { ASSERT_EQ(Run(u"/DBL " + folder), std::nullopt); }
  void Search() { form().btFind.UserClick(); }
  void OpenAndSearch(const Text& folder = u"T:\\d") {
    Open(folder);
    Search();
  }

  // One node as "parent text", with "+" in front where its box is on.
  std::vector<std::string> Nodes() {
    std::vector<std::string> nodes;
    for (int i = 1; i <= tree().count(); ++i) {
      const auto& node = tree().At(i);
      nodes.push_back((node.checked ? "+" : "") + std::to_string(node.parent) + " " +
                      ToUtf8(node.text));
    }
    return nodes;
  }
  std::vector<bool> Checked() {
    std::vector<bool> checked;
    for (int i = 1; i <= tree().count(); ++i) checked.push_back(tree().At(i).checked);
    return checked;
  }
  using Lines = std::vector<std::string>;
};

}  // namespace orvik::test

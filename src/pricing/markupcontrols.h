#pragma once

#include <array>

#include "pricing/controlgroup.h"
#include "records/markupsfile.h"

namespace tamo {

// The twelve markups, each a fraction.
struct MarkupControls : ControlGroup {
  explicit MarkupControls(Form& owner);

  Frame MarkupsFrame{form, "MarkupsFrame"};
  Label LabelMOH{form, "LabelMOH", "Material Overhead :"};
  TextField MOH{form, "MOH"};
  Label LabelMTX{form, "LabelMTX", "Material Tax :"};
  TextField MTX{form, "MTX"};
  Label LabelMMU{form, "LabelMMU", "Material Markup:"};
  TextField MMU{form, "MMU"};
  Label LabelLOH{form, "LabelLOH", "Labor Overhead :"};
  TextField LOH{form, "LOH"};
  Label LabelLTX{form, "LabelLTX", "Laborl Tax :"};
  TextField LTX{form, "LTX"};
  Label LabelLMU{form, "LabelLMU", "Labor Markup:"};
  TextField LMU{form, "LMU"};
  Label LabelBLOH{form, "LabelBLOH", "Bottom Line Overhead :"};
  TextField BLOH{form, "BLOH"};
  Label LabelBLTX{form, "LabelBLTX", "Bottom Line Tax :"};
  TextField BLTX{form, "BLTX"};
  Label LabelBLMU{form, "LabelBLMU", "Bottom Line Markup :"};
  TextField BLMU{form, "BLMU"};
  Label LabelMIOH{form, "LabelMIOH", "Misc. Overhead :"};
  TextField MIOH{form, "MIOH"};
  Label LabelMITX{form, "LabelMITX", "Misc. Tax :"};
  TextField MITX{form, "MITX"};
  Label LabelMIMU{form, "LabelMIMU", "Misc. Markup:"};
  TextField MIMU{form, "MIMU"};
  Button ExitMarkups{form, "ExitMarkups", "Exit Markups"};

  // In the order of the ring, and of the file.
  const std::array<TextField*, 12> MarkupRing{&MOH,  &MTX,  &MMU,  &LOH,  &LTX,  &LMU,
                                              &BLOH, &BLTX, &BLMU, &MIOH, &MITX, &MIMU};

  Markups MarkupTexts() const;
  void PutMarkupTexts(Markups texts);
};

}  // namespace tamo

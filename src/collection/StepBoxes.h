// The boxes Station, Step and Previous and the direction: read into the state, checked, asked for.
#pragma once

#include "collection/Asking.h"
#include "collection/MeasurementsForm.h"
#include "collection/RunNews.h"
#include "collection/RunStage.h"

#include <string>

namespace trekor {

class StepBoxes {
public:
  StepBoxes(const StepControls& controls, ProgramState& state, const RunStage& stage, RunNews& news, Asking& asking)
      : controls(controls), state(state), stage(stage), news(news), asking(asking) {}

  // Asks for box 6, 7 or 8 of Texts. An emptied prompt changes nothing and sends nothing; Esc answers with the old
  // text, which counts as an answer.
  void EnterHugeNumber(int index);
  void EnterHugeText(int index); // kept for a box of words; all three hold numbers, so nothing calls it
  void Validate_Station();       // box 6
  void Validate_Step();          // box 7
  // At the load of the form: writes the box Previous in the operator's unit.
  void ReadPrevious();
  // PREPARE of the link: the station of the start, in kilometres.
  void PrepareStation(double km);

  // Reads step and station of a start, and asks for what is missing. False: no step, no start.
  bool ReadStart();
  // The boundaries of a start at the station in box 6.
  void SetFirstBoundary();
  // Whether the control program has turned the direction since then.
  bool DirectionTurned() const { return state.position.DmiIncreasing != boundaryUp; }
  // Kilometres of a text in the operator's unit; 0 for blank text for a unit code that is none of the operator's.
  double StationTextToKm(const std::string& text) const;

  // Around a change of the units: reads the boxes, and shows what they held in the new ones.
  void KeepBoxes();
  void RenewBoxes();
  void SetUnitLabels(); // with the news to the link
  void ShowUnitLabel();
  // Picture, label and direction agree afterwards; the label is the one that was stored.
  void LoadDirection();
  void Set_UpDnIcon();
  void UpDnPicture_Click();

private:
  TextBox& Box(int index) const;
  std::string LabelCaption(int index) const;
  void ValidateBox(Station& value, TextBox& box);
  bool ReadStep();
  void SettleStation();

  StepControls controls;
  ProgramState& state;
  const RunStage& stage;
  RunNews& news;
  Asking& asking;
  // The box Station as it was before the units changed.
  struct {
    std::string text;
    double km = 0, key = 0; // of the box, of KeyStation
    int unit = 0;
  } before;
  bool boundaryUp = true; // the direction for which the first boundary was set
  bool entryGuard = true; // quiets a box's own change handler while it is checked
};

} // namespace trekor

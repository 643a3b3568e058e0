#include "program/homecontrols.h"

namespace tamo {

HomeControls::HomeControls(Form& owner) : form(owner) {
  HomeStart.PutInto(HomePage);
  HomeState.PutInto(HomePage);
  for (Control* control : std::initializer_list<Control*>{
           &HomeSample, &HomeCreate, &HomeOpen, &HomeGuide, &HomeNoProjects, &HomeNoPlans})
    control->PutInto(HomeStart);
  for (Button* button : Projects()) button->PutInto(HomeStart);
  for (Button* button : Plans()) button->PutInto(HomeStart);
  for (Control* control : std::initializer_list<Control*>{
           &HomeName, &HomeNumber, &HomeTotal, &HomeHours, &HomeBidDate, &HomeRooms, &HomeAreas,
           &HomeEmptyLines, &HomeUnpriced, &HomeItems, &HomeAdjustment, &HomeThumbnail, &HomeLast,
           &HomeUncounted})
    control->PutInto(HomeState);
  for (Button* button : Projects()) button->Hide();
  for (Button* button : Plans()) button->Hide();
  // The letters of the menus stay the only ones; what is typed is never for the page.
  for (Control* control : form.Controls()) {
    if (control->Container() == &HomeStart || control->Container() == &HomeState)
      control->takesFocus = false;
  }
}

}  // namespace tamo

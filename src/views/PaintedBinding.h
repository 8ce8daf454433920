// The binding of a control whose widget draws itself from the model.
#pragma once

#include "views/Binding.h"

namespace trekor {

// `Painted` is a widget made of the model, the pictures and a parent.
template <class Sort, class Painted> class PaintedBinding : public Binding {
public:
  PaintedBinding(Sort& c, BindingPlace& p) : Binding(c, p), model(c) {}

private:
  QWidget* Make(QWidget* parent) override { return new Painted(model, place.Pictures(), parent); }
  void Follow(Change) override { widget->update(); }
  void FollowAll() override {}
  Sort& model;
};

} // namespace trekor

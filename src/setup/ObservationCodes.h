// What the numbers of an observation mean. They are stored in setups and data files, so each word keeps its number. A
// database may hold a number that has no word; a variable of these types then has that number.
#pragma once

namespace trekor {

// What the value of an observation is. The key of an Unnamed one changes nothing, and its value shows in the cell
// alone; the editor doesn't offer it.
enum class DataType : int { Boolean = 0, Integer = 1, Float = 2, Unnamed = 3, Text = 4 };

// How long a value lives, and whether its key makes a row of its own. Below Point: like PointContinues at a step and
// like Point at the key. Above PointContinues: like Continues.
enum class RegMode : int {
  Point = 0,          // a row of its own, gone with the step
  PresentStep = 1,    // holds for the step on the road
  Continues = 2,      // holds until it is changed
  PointContinues = 3, // a row of its own, and holds until it is changed
};

// How a key is used. Only the second has a word: for every other number the key alone acts.
enum class Keying : int { TwoKeys = 2 };

// Values that a column's bar shows.
constexpr bool HasBar(DataType type) {
  return type == DataType::Boolean || type == DataType::Integer || type == DataType::Float;
}

} // namespace trekor

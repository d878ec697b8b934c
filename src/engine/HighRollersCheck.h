#pragma once

#include <cstdint>
#include <string>

namespace blunko {

/// Takes what persons have scored. By itself it does nothing.
class HighRollersCheck {
 public:
  virtual ~HighRollersCheck() = default;
  /// A banked turn, and a margin of victory, are offered to the high rollers lists. Modal.
  virtual void CheckHighTurn(const std::string& /*Name*/, std::int16_t /*Score*/) {}
  virtual void CheckWhoopin(const std::string& /*Name*/, std::int16_t /*Margin*/) {}
};

}  // namespace blunko

// Something that the event loop calls when its time has come: see `plateforme::boucle::arme`.
#pragma once

namespace plateforme {

class rappel {
  public:
    virtual void tic() = 0;

  protected:
    constexpr rappel() = default;
    ~rappel() = default;
};

} // namespace plateforme

#pragma once

#include <array>

namespace kelvor {

/// The graphical services without which the program cannot work, but for the last, which costs the
/// reports alone. Proved at start in this order.
enum class Component { TabStrip, Grid, FileDialogs, ReportEngine };

inline constexpr std::array kComponents = {Component::TabStrip, Component::Grid, Component::FileDialogs,
                                           Component::ReportEngine};

class ComponentProbe {
  public:
    ComponentProbe() = default;
    ComponentProbe(const ComponentProbe&) = delete;
    ComponentProbe& operator=(const ComponentProbe&) = delete;
    virtual ~ComponentProbe() = default;

    /// True if the component works.
    virtual bool Prove(Component component) = 0;

    /// Asked for once per start, after the first component that fails.
    virtual void RegisterComponents() {}
};

/// For programs whose components are linked in: they are there.
class LinkedComponents : public ComponentProbe {
  public:
    bool Prove(Component component) override;
};

}  // namespace kelvor

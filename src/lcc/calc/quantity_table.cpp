#include "lcc/calc/quantity_table.h"

#include "calc/ignore_faults.h"
#include "lcc/calc/pavements.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

constexpr double kSquareFeetPerSquareYard = 9.0;
constexpr double kInchPoundsPerFootTon = 24000.0;  // 12 inches a foot, 2000 pounds a ton
constexpr double kCentimetresPerMetre = 100.0;
constexpr double kKilogramsPerTon = 1000.0;
constexpr double kMillimetresPerMetre = 1000.0;

/// A cell as it is shown in the active system, as a number; 0 where there is none.
Real ShownNumber(const Units& units, std::string_view variable, int dim1, int pavement) {
    return ParseNumber(units.GetDisplayValue(variable, dim1, pavement));
}

/// A layer of a pavement, in the active unit system.
struct Layer {
    Real width, thickness, unitWeight;
};

Layer ReadLayer(const Units& units, int layer, int pavement) {
    return {ShownNumber(units, "LayerWidth", layer, pavement),
            ShownNumber(units, "LayerThickness", layer, pavement),
            ShownNumber(units, "UnitWeight", layer, pavement)};
}

/// The quantities of one pavement while they are worked out, items by their number.
class Tabulation {
  public:
    Tabulation(const Units& units, int pavement)
        : units_(units),
          pavement_(pavement),
          metric_(units.bMetric()),
          length_(ShownNumber(units, "ProjectLength", 1, pavement)) {}

    QuantityTable Build() {
        AddAreas();
        AddWeights();
        AddLengths();
        // The layer below the joints and the overlays: of pavement A always, for pavement B its second one.
        const Layer base = ReadLayer(units_, pavement_ == kPavementB ? 2 : 1, kPavementA);
        AddJoints(base);
        AddOverlays(base);
        return table_;
    }

  private:
    template <typename Quantity>
    void Set(int item, std::string_view unit, Quantity quantity) {
        ItemQuantity& entry = table_[static_cast<std::size_t>(item - 1)];
        IgnoreFaults([&] { entry.quantity = quantity(); });
        entry.unit = unit;
    }

    [[nodiscard]] Real Of(int item) const { return table_[static_cast<std::size_t>(item - 1)].quantity; }

    void AddAreas() {
        const std::string_view unit = metric_ ? "sq m" : "sq yd";
        for (int item = 1; item <= kMeasuredItems; ++item) {  // what is no area is replaced below
            const Real width = ShownNumber(units_, "LayerWidth", item, pavement_);
            Set(item, unit, [&] {
                const Real area = width * length_;
                return metric_ ? area : area / kSquareFeetPerSquareYard;
            });
        }
        Set(9, unit, [&] { return Of(1) + Of(7) + Of(8); });
    }

    void AddWeights() {
        for (int item = 10; item <= 17; ++item) {
            const Layer layer = ReadLayer(units_, item - 9, pavement_);
            Set(item, Tons(), [&] {
                const Real volume = length_ * layer.width * layer.thickness;
                if (metric_) return volume * (layer.unitWeight / kKilogramsPerTon / kMillimetresPerMetre);
                return volume * layer.unitWeight / kInchPoundsPerFootTon;
            });
        }
        Set(18, Tons(), [&] { return Of(10) + Of(16) + Of(17); });
    }

    void AddLengths() {
        Set(19, Feet(), [&] { return metric_ ? length_ * kCentimetresPerMetre : length_; });
        Set(20, Feet(), [&] {
            const Real twice = length_ * 2.0;
            return metric_ ? twice * kCentimetresPerMetre : twice;
        });
    }

    void AddJoints(const Layer& base) {
        const Real spacing = ShownNumber(units_, "JointSpacing", 1, pavement_);
        if (spacing <= 0.0) return;
        Set(21, Feet(), [&] {
            const Real area = length_ * base.width;
            if (!metric_) return area / spacing;
            if (pavement_ == kPavementB) return area / (spacing * kCentimetresPerMetre);
            return (area / spacing) * kCentimetresPerMetre;
        });
    }

    void AddOverlays(const Layer& base) {
        for (int thickness = 1; thickness <= 3; ++thickness) {
            Set(21 + thickness, Tons(), [&] {
                const Real volume = length_ * base.width * thickness;
                if (metric_) return volume * (base.unitWeight / kKilogramsPerTon);
                return volume * base.unitWeight / kInchPoundsPerFootTon;
            });
        }
    }

    [[nodiscard]] std::string_view Tons() const { return metric_ ? "ton (m)" : "ton (e)"; }
    [[nodiscard]] std::string_view Feet() const { return metric_ ? "In cm" : "In feet"; }

    const Units& units_;
    int pavement_;
    bool metric_;
    Real length_;
    QuantityTable table_{};
};

}  // namespace

QuantityTable BuildQuantityTable(const Units& units, int pavement) {
    return Tabulation(units, pavement).Build();
}

}  // namespace kelvor

#include "simulator/PlanPositions.h"

namespace orlo {

PlanPositions::PlanPositions(const Plan& plan) : index_(plan.PlanAirportIndex) {
    points_.reserve(plan.PlanAirports.size());
    for (const PlanAirport& airport : plan.PlanAirports) {
        const auto position = ParsePosition(airport.Latitude, airport.Longitude);
        points_.push_back(position ? std::optional(PreparePoint(*position)) : std::nullopt);
    }
}

std::int32_t PlanPositions::Place(std::string_view code) const {
    const std::int32_t* place = index_.Find(code);
    return place == nullptr ? -1 : *place;
}

const GreatCirclePoint* PlanPositions::PointOf(std::int32_t place) const {
    if (place < 0 || static_cast<std::size_t>(place) >= points_.size()) return nullptr;
    const auto& point = points_[static_cast<std::size_t>(place)];
    return point ? &*point : nullptr;
}

std::int32_t PlanPositions::Distance(std::int32_t fromPlace, std::int32_t toPlace) const {
    const GreatCirclePoint* from = PointOf(fromPlace);
    const GreatCirclePoint* to = PointOf(toPlace);
    return from == nullptr || to == nullptr ? -1 : GreatCircleDistance(*from, *to);
}

std::int32_t PlanPositions::Course(std::int32_t fromPlace, std::int32_t toPlace) const {
    const GreatCirclePoint* from = PointOf(fromPlace);
    const GreatCirclePoint* to = PointOf(toPlace);
    return from == nullptr || to == nullptr ? -1 : GreatCircleCourse(*from, *to);
}

RouteMeasure PlanPositions::Measure(const End& from, const End& to) const {
    if (from.Code == to.Code) return {0, -1};
    const GreatCirclePoint* fromPoint = PointOf(from.Place);
    const GreatCirclePoint* toPoint = PointOf(to.Place);
    return fromPoint == nullptr || toPoint == nullptr ? RouteMeasure{} : MeasureRoute(*fromPoint, *toPoint);
}

std::int32_t PlanPositions::Distance(std::string_view from, std::string_view to) const {
    return from == to ? 0 : Distance(Place(from), Place(to));
}

std::int32_t PlanPositions::Course(std::string_view from, std::string_view to) const {
    return from == to ? -1 : Course(Place(from), Place(to));
}

}  // namespace orlo

#include "search/evolution.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace zolv {
namespace {

using Vector = std::vector<double>;

/// One rotation of Jacobi's method: makes entry (p, q) of `a` nought, and turns the axes along.
void Rotate(Matrix& a, Matrix& axes, std::size_t p, std::size_t q) {
    const double theta = (a(q, q) - a(p, p)) / (2 * a(p, q));
    const double t = std::copysign(1 / (std::fabs(theta) + std::sqrt(theta * theta + 1)), theta);
    const double c = 1 / std::sqrt(t * t + 1);
    const double s = t * c;
    for (std::size_t k = 0; k < a.n; ++k) {
        const double kp = a(k, p);
        a(k, p) = c * kp - s * a(k, q);
        a(k, q) = s * kp + c * a(k, q);
    }
    for (std::size_t k = 0; k < a.n; ++k) {
        const double pk = a(p, k);
        a(p, k) = c * pk - s * a(q, k);
        a(q, k) = s * pk + c * a(q, k);
        const double kp = axes(k, p);
        axes(k, p) = c * kp - s * axes(k, q);
        axes(k, q) = s * kp + c * axes(k, q);
    }
}

/// Axes of a symmetric matrix, in columns, and the roots of its eigenvalues.
void FindAxes(Matrix a, Matrix& axes, Vector& lengths) {
    constexpr int kSweeps = 30;
    for (std::size_t i = 0; i < a.n; ++i) {
        for (std::size_t j = 0; j < a.n; ++j) axes(i, j) = i == j ? 1 : 0;
    }
    for (int sweep = 0; sweep < kSweeps; ++sweep) {
        bool turned = false;
        for (std::size_t p = 0; p < a.n; ++p) {
            for (std::size_t q = p + 1; q < a.n; ++q) {
                if (std::fabs(a(p, q)) <= 1e-12 * std::sqrt(std::fabs(a(p, p) * a(q, q)))) continue;
                Rotate(a, axes, p, q);
                turned = true;
            }
        }
        if (!turned) break;
    }
    for (std::size_t i = 0; i < a.n; ++i) lengths[i] = std::sqrt(std::max(a(i, i), 1e-20));
}

}  // namespace

double Normals::Next() {
    const double radius = std::sqrt(-2 * std::log(1 - Unit()));
    return radius * std::cos(2 * std::numbers::pi * Unit());
}

double Normals::Unit() {
    std::uint64_t z = (state_ += 0x9E3779B97F4A7C15U);
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return static_cast<double>((z ^ (z >> 31U)) >> 11U) * 0x1p-53;
}

Evolution::Evolution(const EvolutionStart& start)
    : n_(start.Mean.size()),
      lambda_(4 + static_cast<std::size_t>(3 * std::log(static_cast<double>(n_)))),
      random_(start.Seed),
      mean_(start.Mean),
      covariance_(n_),
      axes_(n_),
      lengths_(n_),
      sizePath_(n_),
      covariancePath_(n_),
      best_(start.Mean) {
    SetConstants();
    for (std::size_t i = 0; i < n_; ++i) covariance_(i, i) = start.Spread[i] * start.Spread[i];
    FindAxes(covariance_, axes_, lengths_);
}

void Evolution::Run(int evaluations, const std::function<double(const Genes&)>& cost,
                    const std::function<bool()>& stop) {
    for (int done = 0; done < evaluations; done += static_cast<int>(lambda_)) {
        children_.clear();
        for (std::size_t k = 0; k < lambda_; ++k) {
            if (stop()) return;
            Genes genes = Mutant();
            const double price = cost(genes);
            if (price < cost_) {
                cost_ = price;
                best_ = genes;
            }
            children_.emplace_back(price, std::move(genes));
        }
        std::ranges::stable_sort(children_, {}, &std::pair<double, Genes>::first);
        Adapt();
    }
}

void Evolution::SetConstants() {
    const auto n = static_cast<double>(n_);
    const std::size_t parents = lambda_ / 2;
    for (std::size_t i = 0; i < parents; ++i) {
        weights_.push_back(std::log((static_cast<double>(lambda_) + 1) / 2) - std::log(static_cast<double>(i) + 1));
    }
    const double sum = std::accumulate(weights_.begin(), weights_.end(), 0.0);
    double squares = 0;
    for (double& weight : weights_) {
        weight /= sum;
        squares += weight * weight;
    }
    mu_ = 1 / squares;
    sizeRate_ = (mu_ + 2) / (n + mu_ + 5);
    sizeDamping_ = 1 + 2 * std::max(0.0, std::sqrt((mu_ - 1) / (n + 1)) - 1) + sizeRate_;
    pathRate_ = (4 + mu_ / n) / (n + 4 + 2 * mu_ / n);
    rankOne_ = 2 / ((n + 1.3) * (n + 1.3) + mu_);
    rankMu_ = std::min(1 - rankOne_, 2 * (mu_ - 2 + 1 / mu_) / ((n + 2) * (n + 2) + mu_));
    expected_ = std::sqrt(n) * (1 - 1 / (4 * n) + 1 / (21 * n * n));
}

Evolution::Genes Evolution::Mutant() {
    Vector genes = mean_;
    for (std::size_t axis = 0; axis < n_; ++axis) {
        const double step = size_ * lengths_[axis] * random_.Next();
        for (std::size_t i = 0; i < n_; ++i) genes[i] += step * axes_(i, axis);
    }
    for (double& gene : genes) gene = std::clamp(gene, 0.0, 1.0);
    return genes;
}

void Evolution::Adapt() {
    const Vector before = mean_;
    std::ranges::fill(mean_, 0);
    for (std::size_t k = 0; k < weights_.size(); ++k) {
        for (std::size_t i = 0; i < n_; ++i) mean_[i] += weights_[k] * children_[k].second[i];
    }
    Vector step(n_);
    for (std::size_t i = 0; i < n_; ++i) step[i] = (mean_[i] - before[i]) / size_;
    const double size = size_;
    AdaptSize(step);
    AdaptCovariance(before, step, size);
    FindAxes(covariance_, axes_, lengths_);
    ++generations_;
}

/// The path of the size goes by the step in units of the spread along each axis.
void Evolution::AdaptSize(const Genes& step) {
    const double rate = std::sqrt(sizeRate_ * (2 - sizeRate_) * mu_);
    Vector even(n_);
    for (std::size_t axis = 0; axis < n_; ++axis) {
        double along = 0;
        for (std::size_t i = 0; i < n_; ++i) along += axes_(i, axis) * step[i];
        along /= lengths_[axis];
        for (std::size_t i = 0; i < n_; ++i) even[i] += axes_(i, axis) * along;
    }
    double squares = 0;
    for (std::size_t i = 0; i < n_; ++i) {
        sizePath_[i] = (1 - sizeRate_) * sizePath_[i] + rate * even[i];
        squares += sizePath_[i] * sizePath_[i];
    }
    pathLength_ = std::sqrt(squares);
    size_ *= std::exp(std::min(1.0, sizeRate_ / sizeDamping_ * (pathLength_ / expected_ - 1)));
}

void Evolution::AdaptCovariance(const Genes& before, const Genes& step, double size) {
    const auto n = static_cast<double>(n_);
    const double settled = std::sqrt(1 - std::pow(1 - sizeRate_, 2 * (generations_ + 1)));
    const double heeded = pathLength_ / settled < (1.4 + 2 / (n + 1)) * expected_ ? 1 : 0;
    const double rate = heeded * std::sqrt(pathRate_ * (2 - pathRate_) * mu_);
    for (std::size_t i = 0; i < n_; ++i) covariancePath_[i] = (1 - pathRate_) * covariancePath_[i] + rate * step[i];
    const double kept = 1 - rankOne_ - rankMu_ + (1 - heeded) * rankOne_ * pathRate_ * (2 - pathRate_);
    for (std::size_t i = 0; i < n_; ++i) {
        for (std::size_t j = 0; j <= i; ++j) {
            double spread = 0;
            for (std::size_t k = 0; k < weights_.size(); ++k) {
                const Vector& child = children_[k].second;
                spread += weights_[k] * (child[i] - before[i]) * (child[j] - before[j]);
            }
            // The size before this generation would be exact; the difference is a part of its slow change.
            covariance_(i, j) = kept * covariance_(i, j) + rankOne_ * covariancePath_[i] * covariancePath_[j] +
                                rankMu_ * spread / (size * size);
            covariance_(j, i) = covariance_(i, j);
        }
    }
}

}  // namespace zolv

#pragma once

#include <cmath>
#include <vector>

namespace kelvor::test {

/// Money that is spent in a year.
struct Expense {
    double amount;
    int year;
};

/// What an amount is after so many years of a rate, one year at a time.
inline double Grown(double amount, double rate, int years) {
    for (int year = 0; year < years; ++year) amount *= 1.0 + rate;
    return amount;
}

/// The present worth of expenses: each comes back to today one year at a time.
inline double PresentWorth(const std::vector<Expense>& expenses, double rate) {
    double worth = 0.0;
    for (Expense expense : expenses) {
        for (; expense.year > 0; --expense.year) expense.amount /= 1.0 + rate;
        worth += expense.amount;
    }
    return worth;
}

/// The same expense in each of so many years, from the first one on.
inline std::vector<Expense> EveryYear(double amount, int years) {
    std::vector<Expense> expenses;
    for (int year = 1; year <= years; ++year) expenses.push_back({amount, year});
    return expenses;
}

/// What is left of a debt that bears interest and is paid back in equal parts, after so many years.
inline double LeftOfDebt(double debt, double payment, double rate, int years) {
    for (int year = 0; year < years; ++year) debt = debt * (1.0 + rate) - payment;
    return debt;
}

}  // namespace kelvor::test

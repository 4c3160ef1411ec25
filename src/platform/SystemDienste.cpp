#include "platform/SystemDienste.h"

#include <chrono>
#include <ctime>

Datum SystemUhr::Jetzt() {
    std::time_t t = std::time(nullptr);
    std::tm lokal{};
    localtime_r(&t, &lokal);
    return Datum{lokal.tm_year + 1900, lokal.tm_mon + 1, lokal.tm_mday, lokal.tm_hour, lokal.tm_min, lokal.tm_sec};
}

int64_t SystemUhr::Millisekunden() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

SystemZufall::SystemZufall() : gen_(std::random_device{}()) {}

double SystemZufall::Nächste() { return std::uniform_real_distribution<double>(0.0, 1.0)(gen_); }

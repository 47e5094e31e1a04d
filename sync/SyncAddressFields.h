#pragma once

#include <QString>

#include <array>

class QLineEdit;

// The four octet fields in which both hub address dialogs take an IPv4 address.
namespace SyncAddressFields {

using Fields = std::array<QLineEdit*, 4>;

// Each field gets a validator of its own, so an octet above 255 can't be typed or pasted.
void setUp(const Fields& fields);

// Empty fields stay empty, so the joined text then fails isIpAddress.
QString join(const Fields& fields);

// The parts of a dotted address, one per field.
void fill(const Fields& fields, const QString& address);

} // namespace SyncAddressFields

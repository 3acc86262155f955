#pragma once

#include <cstdint>

namespace storage {

// Sums up which indexes this program keeps and what they take of a record. A store whose entries
// were kept under another signature cannot be trusted to lead to every record. Never 0.
std::int64_t signatureIndex();

}  // namespace storage

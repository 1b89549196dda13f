#pragma once

class IField;
class IPilot;

/// Choose the opponent that suits the hunter best: near, and ahead rather than behind. Who has left the field is no
/// target. Return null when there is none but the excluded one (which may be null).
const IPilot* chooseTarget(const IPilot& hunter, const IPilot* excluded, const IField& field);

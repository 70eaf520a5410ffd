#pragma once

class KWDocument;

/// Fills an empty plan with so many guests, at round tables of ten and with a few seats to spare:
/// in groups of three, each a couple and a child, every guest with a wish or two. Nobody is seated
/// and every run gives the same plan.
void fillBenchPlan(KWDocument &plan, int guests);

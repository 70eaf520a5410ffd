#pragma once

class KWDocument;

/// Fills an empty plan with so many guests and round tables of ten, with a few seats to spare. The
/// guests come in groups of three, a couple and a child who wish to sit together; some have a wish
/// for a guest of another group. Nobody is seated, and every call gives the same plan.
void fillBenchPlan(KWDocument &plan, int guests);

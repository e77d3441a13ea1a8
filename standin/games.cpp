#include "games.h"

#include <array>

namespace standin {

namespace {

// Accented letters are single bytes of Windows-1252. The order is deliberately not alphabetic.
const auto kGames = std::to_array<Game>({
    {"thornhil", "Thornwick Hill Drive"},
    {"voltlynx", "Volt Lynx"},
    {"lanternf2", "Lantern Fists 2 (Revision B)"},
    {"lanternf2a", "Lantern Fists 2 (Revision A)"},
    {"ambrcst", "Amber Coast Rally"},
    {"brassmar", "Brass & Marigold"},
    {"quillgrd", "Quillguard"},
    {"duskferry", "Dusk Ferry, The Last Crossing"},
    {"cafebrum", "Caf\xE9 Bruma Grand Prix"},
    {"zephbrk", "Zephyr Breakers"},
    {"marrowgt", "Marrowgate Nights"},
    {"tinkgate", "The Tinker's Gate"},
    {"spindrft", "Spindle   Drift"},
    {"paperlgt",
     "The Extraordinary and Mostly Truthful Voyage of the Paper Lighthouse Keepers "
     "across the Upside-Down Sea, Volume Two"},
    {"glassbak", "Glassback Stampede"},
    {"uberflus",
     "\xDC"
     "berfluss 88"},
    {"oxbowgp", "Oxbow Grand Prix"},
    {"abalonec", "Abalone Circuit"},
    {"hexwool", "Hexwool Derby"},
    {"crowsalt", "Crowsalt Harbour"},
    {"lanternf", "Lantern Fists"},
    {"acaocosm", "A\xE7\xE3o C\xF3smica"},
    {"tinfalcn", "Tin Falconers"},
    {"rustlily", "Rustlily"},
    {"yarrow_x9", "Yarrow X-9"},
    {"grvlqn", "Gravel Queens"},
    {"mothpilot", "Moth Pilot, Ace & Friends"},
    {"ecomet", "e-Comet Relay"},
    {"skyhamer", "Sky Hammerfolk"},
    {"fjordbld", "Fjordblade"},
    {"ochrecor", "Ochre Corridor"},
    {"volcanin", "Ni\xF1o Fole y el Volc\xE1n"},
    {"ironplum", "Iron Plum"},
    {"bkspindl", "Backspindle"},
    {"saltst11", "Saltstorm Eleven"},
    {"wickwolf", "Wickerwolf"},
    {"7undertow", "7th Undertow"},
    {"pyrewght", "Pyreweight Champions"},
    {"emberlok", "Emberlock Tower"},
    {"cindrsng", "Cindersong"},
    {"nimblewk", "Nimblewick's Parade"},
});

}  // namespace

std::span<const Game> Games() { return kGames; }

}  // namespace standin

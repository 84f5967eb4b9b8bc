#pragma once
// throw and catch may stand in a comment

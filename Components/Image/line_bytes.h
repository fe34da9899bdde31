#pragma once
// Where lines and statements begin, as few bytes.
#include "Components/Image/code/code_image.h"
#include "Components/Image/image_bytes.h"
#include <string>
#include <vector>

namespace image {

std::string encodeLines(const std::vector<Procedure>& procedures);
void decodeLines(Reader in, std::vector<Procedure>& procedures);

std::string encodeStatements(const std::vector<Procedure>& procedures);
void decodeStatements(Reader in, std::vector<Procedure>& procedures);

} // namespace image

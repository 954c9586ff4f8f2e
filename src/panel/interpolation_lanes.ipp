// The search of Interpolation over some points at once that lie in one cell, one point a lane. Included once for each
// instruction set, in its own namespace, which brings the type Narrow and its few operations: set_all, load, store,
// square_root, any.
//
// Sites are compared by the squares of their distances: the root is the dear part. Squares rank as their roots do,
// except where two of them are so close that both may have the same root; such points are marked and left to the plain
// search. With no slot further away than the replacement distance, the chain of the slots is a plain insertion.

// Two vectors side by side: the branches of the search are shared by more points.
template <class Half> struct Twin {
    Half low, high;

    Twin& operator|=(Twin const& other)
    {
        low |= other.low;
        high |= other.high;
        return *this;
    }
};

template <class Half> Twin<Half> twin(Half const& low, Half const& high)
{
    return {low, high};
}

template <class Half> Twin<Half> operator+(Twin<Half> const& a, Twin<Half> const& b)
{
    return {a.low + b.low, a.high + b.high};
}

template <class Half> Twin<Half> operator-(Twin<Half> const& a, Twin<Half> const& b)
{
    return {a.low - b.low, a.high - b.high};
}

template <class Half> Twin<Half> operator*(Twin<Half> const& a, Twin<Half> const& b)
{
    return {a.low * b.low, a.high * b.high};
}

template <class Half> Twin<Half> operator/(Twin<Half> const& a, Twin<Half> const& b)
{
    return {a.low / b.low, a.high / b.high};
}

template <class Half> Twin<Half> operator&(Twin<Half> const& a, Twin<Half> const& b)
{
    return {a.low & b.low, a.high & b.high};
}

template <class Half> auto operator<(Twin<Half> const& a, Twin<Half> const& b)
{
    return twin(a.low < b.low, a.high < b.high);
}

template <class Half> auto operator<=(Twin<Half> const& a, Twin<Half> const& b)
{
    return twin(a.low <= b.low, a.high <= b.high);
}

template <class Half> auto operator>(Twin<Half> const& a, Twin<Half> const& b)
{
    return twin(a.low > b.low, a.high > b.high);
}

template <class Half> auto operator>=(Twin<Half> const& a, Twin<Half> const& b)
{
    return twin(a.low >= b.low, a.high >= b.high);
}

template <class Half> auto operator==(Twin<Half> const& a, Twin<Half> const& b)
{
    return twin(a.low == b.low, a.high == b.high);
}

template <class Half> auto operator!=(Twin<Half> const& a, Twin<Half> const& b)
{
    return twin(a.low != b.low, a.high != b.high);
}

template <class Mask, class Vector> Vector choose(Mask const& mask, Vector const& when_set, Vector const& otherwise)
{
    return mask ? when_set : otherwise;
}

template <class Mask, class Half>
Twin<Half> choose(Twin<Mask> const& mask, Twin<Half> const& when_set, Twin<Half> const& otherwise)
{
    return {choose(mask.low, when_set.low, otherwise.low), choose(mask.high, when_set.high, otherwise.high)};
}

template <class Half> Twin<Half> square_root(Twin<Half> const& value)
{
    return {square_root(value.low), square_root(value.high)};
}

template <class Mask> bool any(Twin<Mask> const& mask)
{
    Mask either = mask.low;
    either |= mask.high;
    return any(either);
}

template <class Half> void set_all(Twin<Half>& vector, double value)
{
    set_all(vector.low, value);
    set_all(vector.high, value);
}

template <class Half> void load(Twin<Half>& vector, double const* from)
{
    load(vector.low, from);
    load(vector.high, from + sizeof(Half) / sizeof(double));
}

template <class Half> void store(double* to, Twin<Half> const& vector)
{
    store(to, vector.low);
    store(to + sizeof(Half) / sizeof(double), vector.high);
}

template <class Vector> Vector all(double value)
{
    Vector vector;
    set_all(vector, value);
    return vector;
}

template <class Vector> using MaskOf = decltype(std::declval<Vector>() < std::declval<Vector>());

// Two squares whose ratio is beyond this have different roots: it leaves two units in the last place between them.
constexpr double root_margin = 1 + 0x1p-50;

template <class Vector> MaskOf<Vector> is_not_finite(Vector const& value)
{
    return value - value != all<Vector>(0);
}

template <class Vector> class Slots
{
public:
    using Mask = MaskOf<Vector>;

    Slots(BucketTable const& table) : value1_(all<Vector>(table.value_of_site1))
    {
        double const start = 4 * table.scale;
        square1_ = square2_ = square3_ = square4_ = all<Vector>(start * start);
        value2_ = value3_ = value4_ = value1_;
        keep_limit();
    }

    // The first site takes all slots: the nearest with its distance, the others with the replacement.
    void offer_first(Vector const& square, double value, double replacement, Mask const& is_searching)
    {
        Vector const filler = all<Vector>(replacement * replacement);
        needs_plain_ |= is_searching & (square >= filler);
        square1_ = choose(is_searching, square, square1_);
        square2_ = square3_ = square4_ = choose(is_searching, filler, square4_);
        value1_ = value2_ = value3_ = value4_ = choose(is_searching, all<Vector>(value), value1_);
        keep_limit();
    }

    bool lets_in(Vector const& square) const { return any(square < limit_); }

    void insert(Vector const& square, double value)
    {
        Vector const z = all<Vector>(value);
        Mask const before1 = square < square1_, before2 = square < square2_;
        Mask const before3 = square < square3_, before4 = square < square4_;
        Vector const left_out = choose(before4, square4_, square);
        square4_ = choose(before3, square3_, choose(before4, square, square4_));
        value4_ = choose(before3, value3_, choose(before4, z, value4_));
        square3_ = choose(before2, square2_, choose(before3, square, square3_));
        value3_ = choose(before2, value2_, choose(before3, z, value3_));
        square2_ = choose(before1, square1_, choose(before2, square, square2_));
        value2_ = choose(before1, value1_, choose(before2, z, value2_));
        square1_ = choose(before1, square, square1_);
        value1_ = choose(before1, z, value1_);
        keep_limit();
        needs_plain_ |= (left_out <= limit_) & (left_out != square4_);
    }

    Vector farthest() const { return square_root(square4_); }

    // The mean. A lane where it fails is marked, and the plain search then tells why.
    Vector result()
    {
        Vector const d1 = square_of_root(square1_), d2 = square_of_root(square2_);
        Vector const d3 = square_of_root(square3_), d4 = square_of_root(square4_);
        Vector const one = all<Vector>(1);
        Vector const shares = value1_ / d1 + value2_ / d2 + value3_ / d3 + value4_ / d4;
        Vector const weights = one / d1 + one / d2 + one / d3 + one / d4;
        Vector const mean = shares / weights;
        Mask has_failed = is_not_finite(shares);
        has_failed |= is_not_finite(weights);
        has_failed |= is_not_finite(mean);
        needs_plain_ |= has_failed & (square1_ != all<Vector>(0));
        return choose(square1_ == all<Vector>(0), value1_, mean);
    }

    Mask needs_plain() const
    {
        Mask marks = needs_plain_;
        marks |= is_close(square1_, square2_);
        marks |= is_close(square2_, square3_);
        marks |= is_close(square3_, square4_);
        return marks;
    }

private:
    void keep_limit() { limit_ = square4_ * all<Vector>(root_margin); }

    static Vector square_of_root(Vector const& square)
    {
        Vector const root = square_root(square);
        return root * root;
    }

    static Mask is_close(Vector const& lower, Vector const& upper)
    {
        return (upper <= lower * all<Vector>(root_margin)) & (upper != lower);
    }

    Vector square1_, square2_, square3_, square4_;
    Vector value1_, value2_, value3_, value4_;
    Vector limit_; // sites from here on neither enter nor may have the root of one that did
    Mask needs_plain_{};
};

template <class Vector> class LaneSearch
{
public:
    LaneSearch(BucketTable const& table, LanePoints const& points) : table_(table), slots_(table), y_(points.y)
    {
        load(x_, points.x);
        load(radius_, points.radius);
    }

    void run(std::int32_t i, std::int32_t j)
    {
        if (i >= table_.first_i && i < table_.end_i && j >= table_.first_j && j < table_.end_j)
            offer_cells(i, j, j + 1);
        std::int32_t ring = 0;
        while (any(is_searching_ = slots_.farthest() > radius_ * radius_) && !is_beyond_sites(i, j, ring)) {
            // A lane that has stopped looks from infinitely far away and takes nothing in any more.
            x_ = choose(is_searching_, x_, all<Vector>(far_away));
            radius_ = radius_ + all<Vector>(table_.pitch);
            ++ring;
            offer_ring(i, j, ring);
        }
    }

    void store_result(LaneResults const& results)
    {
        store(results.z, slots_.result());
        store(results.needs_plain, choose(slots_.needs_plain(), all<Vector>(1), all<Vector>(0)));
    }

private:
    static constexpr double far_away = 1e200; // its square is infinite

    bool is_beyond_sites(std::int32_t i, std::int32_t j, std::int32_t ring) const
    {
        return i - ring <= table_.first_i && i + ring >= table_.end_i - 1 && j - ring <= table_.first_j &&
               j + ring >= table_.end_j - 1;
    }

    // Once around, clockwise from the upper left corner; each side ends ahead of the next one's first cell.
    void offer_ring(std::int32_t i, std::int32_t j, std::int32_t ring)
    {
        std::int32_t const left = i - ring, right = i + ring, bottom = j - ring, top = j + ring;
        if (top >= table_.first_j && top < table_.end_j)
            for (std::int32_t at = std::max(left, table_.first_i); at < std::min(right, table_.end_i); ++at)
                offer_cells(at, top, top + 1);
        if (right >= table_.first_i && right < table_.end_i)
            for (std::int32_t at = std::min(top, table_.end_j - 1); at > std::max(bottom, table_.first_j - 1); --at)
                offer_cells(right, at, at + 1);
        if (bottom >= table_.first_j && bottom < table_.end_j)
            for (std::int32_t at = std::min(right, table_.end_i - 1); at > std::max(left, table_.first_i - 1); --at)
                offer_cells(at, bottom, bottom + 1);
        if (left >= table_.first_i && left < table_.end_i)
            offer_cells(left, std::max(bottom, table_.first_j), std::min(top, table_.end_j));
    }

    // The cells (i, j) to (i, end_j - 1), whose lists lie one behind the other.
    void offer_cells(std::int32_t i, std::int32_t j, std::int32_t end_j)
    {
        if (j >= end_j)
            return;
        std::ptrdiff_t const rows = table_.end_j - table_.first_j;
        std::uint32_t const* const column = table_.start + (i - table_.first_i) * rows;
        offer_items(column[j - table_.first_j], column[end_j - table_.first_j]);
    }

    void offer_items(std::uint32_t item, std::uint32_t end)
    {
        if (!has_offered_ && item < end) {
            slots_.offer_first(square_to(item), table_.z[item], 2 * table_.scale, is_searching_);
            has_offered_ = true;
            ++item;
        }
        for (; item < end; ++item) {
            Vector const square = square_to(item);
            if (slots_.lets_in(square))
                slots_.insert(square, table_.z[item]);
        }
    }

    Vector square_to(std::uint32_t item) const
    {
        Vector const dx = x_ - all<Vector>(table_.x[item]);
        double const dy = y_ - table_.y[item];
        return dx * dx + all<Vector>(dy * dy);
    }

    BucketTable const& table_;
    Slots<Vector> slots_;
    Vector x_;
    double y_;
    Vector radius_;
    MaskOf<Vector> is_searching_ = all<Vector>(0) == all<Vector>(0);
    bool has_offered_ = false;
};

template <class Vector>
void search_lanes(BucketTable const& table, LanePoints const& points, LaneResults const& results)
{
    LaneSearch<Vector> search(table, points);
    search.run(points.i, points.j);
    search.store_result(results);
}
